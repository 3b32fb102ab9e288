#pragma once

#include <variant>

#include "account/AccountHeader.h"
#include "disclosure/DisclosureCheck.h"
#include "portfolio/CheckedPart.h"
#include "statement/StatementCheck.h"

namespace corvane {

/// Where a check stands: at the window that refuses what was entered, or at its results.
enum class CheckStage { Setup, TierTable, Entry, Results };

/// An account of a file as a check of the windows.
struct OpenedCheck {
  AccountHeader header;
  std::variant<DisclosureCheck, StatementCheck> check;
  CheckStage stage = CheckStage::Setup;
  std::string told;  ///< the messages of its rows, why it was refused too
};

/// Fills an account of a part into a check as a person would have typed it. Its rows must not be
/// damaged.
OpenedCheck OpenAccount(const CheckedPart& part, const CheckedAccount& account);

}  // namespace corvane
