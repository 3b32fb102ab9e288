#include "statement/StatementEntry.h"

#include <gtest/gtest.h>

#include "statement/EntryExamples.h"
#include "statement/StatementReset.h"
#include "statement/StatementSetupStore.h"

namespace corvane {
namespace {

TEST(StatementEntry, NothingOfOneAccountIsSeenInTheNext) {
  EntryExample example;
  auto& [session, entry] = example;
  InitStatementEntry(session, entry, false);
  EXPECT_EQ(entry.txtIntAmt.text, "12.50") << "coming back loses nothing";
  ResetStatement(session);
  InitStatementEntry(session, entry, false);
  EXPECT_EQ(entry.txtIntAmt.text + entry.txtLedgerdays.text + entry.txtMinADB.text, "");
  EXPECT_TRUE(entry.optADB) << "preselected by New Account";
  EXPECT_FALSE(session.NewStatementAcct);
  StartStatements(session);
  InitStatementEntry(session, entry, false);
  EXPECT_FALSE(entry.optADB || entry.optDailyBal);
}

TEST(StatementEntry, TheFactorStaysUntilTheDaysInTheYearAreChosenAnew) {
  EntryExample example;
  auto& [session, entry] = example;
  EXPECT_EQ(entry.txtDRFactor.text, "1/365");
  entry.txtDRFactor.text = "1/360";
  session.DailyRateFactor = "1/360";
  StatementSetup setup;
  ValidateAndStoreSetup(setup, session);
  session.DailyRateFactor = "1/360";
  ValidateAndStoreSetup(setup, session);
  InitStatementEntry(session, entry, false);
  EXPECT_EQ(entry.txtDRFactor.text, "1/360");
  ChooseDaysInYear(setup, true);
  ValidateAndStoreSetup(setup, session);
  InitStatementEntry(session, entry, false);
  EXPECT_EQ(entry.txtDRFactor.text, "1/366");
}

TEST(StatementEntry, TheRateIsTypedForRegularAccountsOnly) {
  EntryExample example;
  auto& [session, entry] = example;
  EXPECT_EQ(AccountInfoText(session), "Regular Account      Interest Compounding = None");
  session.AcctRegular = false;
  session.AcctTierB = true;
  session.CompoundDays = true;
  InitStatementEntry(session, entry, false);
  EXPECT_FALSE(entry.txtIntRate.enabled);
  EXPECT_EQ(AccountInfoText(session), "Tier B Account      Interest Compounding = Days");
}

}  // namespace
}  // namespace corvane
