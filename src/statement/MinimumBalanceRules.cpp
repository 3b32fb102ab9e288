#include "statement/MinimumBalanceRules.h"

#include "account/SessionRecord.h"
#include "statement/StatementAccount.h"

namespace corvane {

namespace {

constexpr const char* kMinimumsNotValid =
    "Values entered for Minimum ADB and Minimum Daily Balance \n"
    "        are not valid for the selected Statement Type and \n"
    "                            Interest Calculation Method";

struct Minimums {
  bool stepped;
  bool additionalApy;
  bool adbMethod;
  bool dailyMethod;
  double adb;
  double daily;

  bool OnlyAdb() const { return adb > 0 && daily == 0; }
  bool OnlyDaily() const { return adb == 0 && daily > 0; }
};

Minimums MinimumsOf(const SessionRecord& session, const StatementEntry& entry) {
  return {.stepped = session.AcctStepped,
          .additionalApy = session.AdditionalApy,
          .adbMethod = entry.optADB,
          .dailyMethod = entry.optDailyBal,
          .adb = entry.txtMinADB.Value(),
          .daily = entry.txtMinDBal.Value()};
}

constexpr EntryCheck<Minimums> kBothGiven[] = {
    {[](const Minimums& m) { return m.adb > 0 && m.daily > 0; }, kMinimumsNotValid, "txtMinADB"},
};

constexpr EntryCheck<Minimums> kRules[] = {
    {[](const Minimums& m) { return m.adbMethod && !m.stepped && m.OnlyDaily(); },
     kMinimumsNotValid, "txtMinADB"},
    {[](const Minimums& m) {
       return m.dailyMethod && m.additionalApy && !m.stepped && m.OnlyAdb();
     },
     kMinimumsNotValid, "txtMinADB"},
    {[](const Minimums& m) {
       return m.dailyMethod && !m.additionalApy && m.stepped && m.OnlyAdb();
     },
     kMinimumsNotValid, "txtMinADB"},
    {[](const Minimums& m) { return m.stepped && m.adbMethod; },
     "Daily Balance Method is the only valid method for Variable rate accounts ", "optDailyBal"},
};

bool IsPlainAccount(const SessionRecord& session) {
  const RateKind kind = RateKindOf(session);
  const bool daily = session.CompoundDays && session.CompoundingDays == 1;
  return kind == RateKind::Regular || (IsTiered(kind) && (session.CompoundNone || daily));
}

}  // namespace

CheckOutcome Check_For_Errors(SessionRecord& session, const StatementEntry& entry) {
  session.BalanceMethodCode = 1;
  session.BalanceMethodSub = IsPlainAccount(session) ? 1 : 0;
  const Minimums minimums = MinimumsOf(session, entry);
  return {.notice = FirstFailure<Minimums>(kBothGiven, minimums),
          .refusal = FirstFailure<Minimums>(kRules, minimums)};
}

}  // namespace corvane
