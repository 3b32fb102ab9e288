#include "account/AccountHeader.h"

#include <gtest/gtest.h>

#include "account/SessionRecord.h"

namespace corvane {
namespace {

TEST(AccountHeader, EachModeStoresOrClearsItsOwnTexts) {
  const std::pair<HeaderMode, const char*> cases[] = {
      {HeaderMode::DisclosureSetup, "Bank/Savings/A. Holder/old 4"},
      {HeaderMode::StatementSetup, "Bank/Savings/A. Holder/77"},
      {HeaderMode::ClearAll, "///"},
      {HeaderMode::KeepInstitution, "old 1///"},
  };
  for (const auto& [mode, expected] : cases) {
    SessionRecord session;
    CaptureUserInfo(session, HeaderMode::StatementSetup, {"old 1", "old 2", "old 3", "old 4"});
    CaptureUserInfo(session, mode, {"Bank", "Savings", "A. Holder", "77"});
    EXPECT_EQ(session.InstitutionName + "/" + session.AccountDescription + "/" +
                  session.AccountHolder + "/" + session.AccountNumber,
              expected);
  }
}

}  // namespace
}  // namespace corvane
