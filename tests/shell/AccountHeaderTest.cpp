#include "shell/AccountHeader.h"

#include <gtest/gtest.h>

#include "shell/SessionRecord.h"

namespace corvane {
namespace {

TEST(AccountHeader, EachModeStoresOrClearsItsOwnTexts) {
  const struct {
    HeaderMode mode;
    const char *institution, *description, *holder, *number;
  } cases[] = {
      {HeaderMode::DisclosureSetup, "Bank", "Savings", "A. Holder", "old 4"},
      {HeaderMode::StatementSetup, "Bank", "Savings", "A. Holder", "77"},
      {HeaderMode::ClearAll, "", "", "", ""},
      {HeaderMode::KeepInstitution, "old 1", "", "", ""},
  };
  for (const auto& c : cases) {
    SessionRecord session;
    CaptureUserInfo(session, HeaderMode::StatementSetup, {"old 1", "old 2", "old 3", "old 4"});
    CaptureUserInfo(session, c.mode, {"Bank", "Savings", "A. Holder", "77"});
    const int mode = static_cast<int>(c.mode);
    EXPECT_EQ(session.InstitutionName, c.institution) << mode;
    EXPECT_EQ(session.AccountDescription, c.description) << mode;
    EXPECT_EQ(session.AccountHolder, c.holder) << mode;
    EXPECT_EQ(session.AccountNumber, c.number) << mode;
  }
}

}  // namespace
}  // namespace corvane
