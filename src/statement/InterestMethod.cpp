#include "statement/InterestMethod.h"

#include "account/SessionRecord.h"

namespace corvane {

namespace {

/// The option that a single minimum calls for; the one chosen where there is not just one.
bool CallsForAdb(const StatementEntry& entry) {
  const bool minimumAdb = entry.txtMinADB.Value() > 0;
  const bool minimumDaily = entry.txtMinDBal.Value() > 0;
  return minimumAdb == minimumDaily ? entry.optADB : minimumAdb;
}

bool HasOneMinimum(const StatementEntry& entry) {
  return (entry.txtMinADB.Value() > 0) != (entry.txtMinDBal.Value() > 0);
}

void Select(StatementEntry& entry, bool adb) {
  entry.optADB = adb;
  entry.optDailyBal = !adb;
}

}  // namespace

void Set_Interest(SessionRecord& session, StatementEntry& entry, MethodChoice choice) {
  const bool locked = session.AcctStepped || session.AdditionalApy;
  const bool adb = !locked && CallsForAdb(entry);
  const bool follows = choice == MethodChoice::FollowMinimum && HasOneMinimum(entry);
  if (locked || follows) Select(entry, adb);
  entry.fraIntCalcMethod = !locked;
  session.BalanceMethodCode = adb ? 1 : 2;
  session.UseAdb = entry.optADB;
  session.UseDailyBal = entry.optDailyBal;
}

void ChooseMethod(SessionRecord& session, StatementEntry& entry, bool adb) {
  Select(entry, adb);
  session.UseAdb = adb;
  session.UseDailyBal = !adb;
}

}  // namespace corvane
