#pragma once

#include <filesystem>

#include "account/AccountHeader.h"
#include "disclosure/DisclosureCheck.h"
#include "statement/StatementCheck.h"

namespace corvane {

/// The two workflows of the program.
enum class Workflow { Disclosure, Statement };

/// What the windows share for the length of a run. It is never stored.
struct Session {
  AccountHeader header;
  Workflow workflow = Workflow::Disclosure;
  DisclosureCheck disclosure;
  StatementCheck statement;
  int reportZoom = 100;              ///< percent of their size that reports are shown at
  std::filesystem::path checkFile;   ///< that checks were last added to; empty for none
  std::filesystem::path dataFolder;  ///< of the reports; empty where it could not be made

  /// Kind of account and tier table of the workflow that is under way.
  AccountKind Kind() const {
    if (workflow == Workflow::Statement) return statement.setup.kind;
    return disclosure.setup.kind.value_or(AccountKind::Regular);
  }
  const TierTable& Tiers() const {
    return workflow == Workflow::Statement ? statement.tiers : disclosure.tiers;
  }
};

}  // namespace corvane
