#include "disclosure/AccountSetup.h"

#include <gtest/gtest.h>

#include "shell/SessionRecord.h"

namespace corvane {
namespace {

using Change = void (*)(AccountSetup&);

/// A regular account, compounded daily in a year of 365 days, then changed.
AccountSetup Changed(const char* interval, Change change) {
  AccountSetup setup;
  setup.optICDays = setup.optRegNoDisc = setup.optRINotReq = setup.optDY365 = setup.optLYNo = true;
  setup.txtDailyCompounding = interval;
  change(setup);
  return setup;
}

void AsItIs(AccountSetup&) {}
void None(AccountSetup& s) {
  s.optICDays = false;
  s.optICNone = true;
}
void Months(AccountSetup& s) {
  s.optICDays = false;
  s.optICMonths = true;
}
void Years(AccountSetup& s) {
  s.optICDays = false;
  s.optICYears = true;
}
void NoAccountType(AccountSetup& s) {
  s.optRegNoDisc = false;
}
void WithdrawnByMonths(AccountSetup& s) {
  s.optRINotReq = false;
  s.optRIMonths = true;
}
void MonthsByMonthsMethodB(AccountSetup& s) {
  Months(s);
  WithdrawnByMonths(s);
  s.optRegNoDisc = false;
  s.optTierB = true;
}
void MonthsByMonthsMethodA(AccountSetup& s) {
  MonthsByMonthsMethodB(s);
  s.optTierB = false;
  s.optTierA = true;
}

constexpr const char* kNoType = "Please select an Account Type.";
constexpr const char* kInterval = "Please enter a valid compounding interval.";
constexpr const char* kMonths = "Months between compounding must be 1, 2, 3, 4, 6 or 12.";
constexpr const char* kLongPeriods =
    "Withdrawals measured in months need compounding every day or by months.";

TEST(AccountSetup, ChecksInOrderAndWhatIsStored) {
  const struct {
    Change change;
    const char* interval;
    const char* message;  // null where the setup is accepted
    int stored;
  } cases[] = {
      {NoAccountType, "-1", kNoType, 0},
      {AsItIs, "-1", kInterval, 0},
      {AsItIs, "40000", kInterval, 0},
      {Months, "-1", kInterval, 0},
      {Years, "32768", kInterval, 0},
      {Months, "0", kMonths, 0},
      {Months, "5", kMonths, 0},
      {Months, "7", kMonths, 0},
      {Months, "11", kMonths, 0},
      {Months, "24", kMonths, 0},
      {WithdrawnByMonths, "2", kLongPeriods, 0},
      {Months, "1", nullptr, 1},
      {Months, "2", nullptr, 2},
      {Months, "3", nullptr, 3},
      {Months, "4", nullptr, 4},
      {Months, "6", nullptr, 6},
      {Months, "12", nullptr, 12},
      {Months, "x", nullptr, 0},
      {WithdrawnByMonths, "1", nullptr, 1},
      {MonthsByMonthsMethodB, "1", nullptr, 1},
      {AsItIs, "", nullptr, 0},
      {AsItIs, "x", nullptr, 0},
      {AsItIs, "0", nullptr, 0},
      {AsItIs, "2.5", nullptr, 2},
      {AsItIs, "3.5", nullptr, 4},
      {AsItIs, "32767", nullptr, 32767},
      {Years, "7", nullptr, 7},
      {None, "40000", nullptr, 0},
  };
  for (const auto& c : cases) {
    AccountSetup setup = Changed(c.interval, c.change);
    const std::string shown = std::string(c.interval) + ", " + (c.message ? c.message : "");
    const auto refusal = CheckSetup(setup);
    ASSERT_EQ(refusal.has_value(), c.message != nullptr) << shown;
    if (refusal) {
      const bool aboutType = c.message == kNoType;
      EXPECT_EQ(refusal->text, c.message);
      EXPECT_EQ(refusal->title, "Key Entry Error");
      EXPECT_EQ(refusal->field, aboutType ? "" : "txtDailyCompounding");
      EXPECT_EQ(refusal->icon, aboutType ? MessageIcon::None : MessageIcon::Exclamation);
      continue;
    }
    SessionRecord session;
    session.PeriodCount = 3;
    StoreSetup(session, setup);
    EXPECT_EQ(session.CompoundingDays, c.stored) << shown;
    EXPECT_EQ(session.PeriodCount, 0);
    EXPECT_TRUE(session.RoundNotTruncate);
    EXPECT_EQ(session.CompoundNone, setup.optICNone);
    EXPECT_EQ(session.CompoundDays, setup.optICDays);
    EXPECT_EQ(session.CompoundMonths, setup.optICMonths);
    EXPECT_EQ(session.CompoundYears, setup.optICYears);
    EXPECT_EQ(session.ReqWdrwlMonths, setup.optRIMonths);
    EXPECT_EQ(session.ReqWdrwlNotReq, setup.optRINotReq);
    EXPECT_EQ(session.AcctTierB, setup.optTierB);
  }
}

TEST(AccountSetup, OnlyMethodBRefusesMonthsByMonths) {
  for (const auto& [change, refused] : {std::pair<Change, bool>{MonthsByMonthsMethodB, true},
                                        {MonthsByMonthsMethodA, false},
                                        {Months, false}}) {
    AccountSetup setup = Changed("1", change);
    SessionRecord session;
    StoreSetup(session, setup);
    const auto refusal = CheckMonthsByMonths(session);
    EXPECT_EQ(refusal ? refusal->text : "",
              refused ? "Months/Months is not in production yet" : "");
  }
}

TEST(AccountSetup, AYearOf366DaysAlwaysCountsTheLeapDayAndSaysSoOnce) {
  const struct {
    bool is366, countsIt, told;
    double days;
  } cases[] = {{false, false, false, 365},
               {false, true, false, 365},
               {true, true, false, 366},
               {true, false, true, 366}};
  for (const auto& c : cases) {
    AccountSetup setup = Changed("1", AsItIs);
    setup.optDY365 = !(setup.optDY366 = c.is366);
    setup.optLYNo = !(setup.optLYYes = c.countsIt);
    SessionRecord session;
    const auto notice = StoreDaysInYear(session, setup);
    EXPECT_EQ(notice.has_value(), c.told) << c.days;
    EXPECT_EQ(session.DaysInYear, c.days);
    EXPECT_EQ(session.CountLeapDay, c.countsIt || c.is366);
    if (!notice) continue;
    EXPECT_EQ(notice->text, "Count 2/29 will be changed to Yes, No is not allowed for 366 days.");
    EXPECT_EQ(notice->icon, MessageIcon::None);
    EXPECT_FALSE(StoreDaysInYear(session, setup)) << "the choice was changed";
  }
}

}  // namespace
}  // namespace corvane
