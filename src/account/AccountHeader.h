#pragma once

#include <string>

namespace corvane {

struct SessionRecord;

/// The four identification texts that a setup window shows and the reports print.
struct AccountHeader {
  std::string institution;
  std::string description;
  std::string holder;
  std::string number;
};

enum class HeaderMode {
  DisclosureSetup = 1,  ///< institution, description and holder
  StatementSetup = 2,   ///< all four
  ClearAll = 5,
  KeepInstitution = 6,  ///< the institution stays, the other three are cleared
};

/// Stores the identification texts in the session record, or clears them, as the mode says.
void CaptureUserInfo(SessionRecord& session, HeaderMode mode, const AccountHeader& fields = {});

/// The stored texts, for a setup window to show.
AccountHeader RestoreUserInfo(const SessionRecord& session);

}  // namespace corvane
