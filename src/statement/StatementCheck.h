#pragma once

#include <array>
#include <optional>
#include <vector>

#include "account/Refusal.h"
#include "account/TierTable.h"
#include "formulas/CheckApy.h"
#include "statement/DailyBalances.h"
#include "statement/StatementPeriod.h"

namespace corvane {

/// The days that the last Compute ADB handed an average back for. They are the detail of a result
/// as long as it rests on them: see DetailOf.
struct InterestDetail {
  DailyBalances daily;
  double averageBalance = 0;
};

/// The interest that the last Compute ADB handed back, and the account that earns it.
struct HandedInterest {
  StatementAccount account;
  std::string text;
  double amount = 0;  ///< currency, unrounded
};

struct StatementResult {
  double interest = 0;  ///< currency, rounded to cents
  double apy = 0;       ///< percent, rounded to hundredths
  Verdict verdict = Verdict::Ok;
};

/// One check of a periodic statement: what was entered, as it was entered, and what was found.
/// A new account is a new value.
struct StatementCheck {
  StatementSetup setup;
  TierTable tiers;
  StatementEntry entry;
  /// Of the ledger and the collected column, as the daily window last handed them back.
  std::array<std::vector<DayEntry>, 2> days;
  std::optional<InterestDetail> detail;
  HandedInterest handed;
  std::optional<StatementResult> result;
};

/// New Account preselects the ADB method.
StatementCheck NewStatementCheck();

/// Continue of the setup window: takes the choices over. The notice says that 29 February will be
/// counted, as a year of 366 days demands; the choices are changed with it, and "0" goes into empty
/// days between compoundings. Another number of days in the year empties the daily rate factor.
CheckOutcome ContinueSetup(StatementCheck& check, StatementSetup& choices);

/// What decides the interest of the account that setup, tier table and entry describe.
StatementAccount AccountOf(const StatementCheck& check);

/// What a change of setup, tier table or entry does to what was worked out from them: days that the
/// dates filled are counted again, and interest that Compute ADB handed back stands only beside the
/// account that earned it.
void FollowChanges(StatementCheck& check);

/// "Compute ADB and Interest" of a column, up to the opening of the daily window. A notice does not
/// keep the window from opening. The caller keeps a copy of the check for a cancel.
CheckOutcome StartCompute(StatementCheck& check, BalanceColumn column);

/// What the daily window works on once StartCompute has passed: the column's days as they were
/// handed back last, as many as the period has; further ones are empty.
DailyBalances DaysOf(const StatementCheck& check, BalanceColumn column, const Date& today);

/// The daily window handed back an average: shows it, and the interest unless it belongs to the
/// other column; the days become the detail. An average below a minimum daily balance that stands
/// alone leaves the interest to be typed.
void FinishCompute(StatementCheck& check, const DailyBalances& daily, const ComputedDays& computed);

/// The check after a cancelled computation: as it was before, but for what the checks filled into
/// the entry, and without the detail where the days opened were not those handed back last.
StatementCheck CancelledCompute(StatementCheck before, const DailyBalances& opened);

/// Calculate of the period window: checks the entries and computes the APY earned on the average of
/// the basis (Regulation DD, Appendix A, Part II). A notice does not keep the results from being
/// shown; after a refusal there is no result.
CheckOutcome CalculateStatement(StatementCheck& check);

/// The days of the year that the APY earned is for: 366 where 29 February counts, else 365.
int YearDaysOf(const StatementCheck& check);

/// The APY that such an interest would be, in percent, unrounded: on the average of the basis, by
/// the additional formula where it applies (Regulation DD, Appendix A, Part II).
double ApyOf(const StatementCheck& check, double interest);

/// The detail of the result: the days of the last Compute ADB while they were for a column of the
/// basis, the account has not changed since, and average and days still stand in the entry.
const InterestDetail* DetailOf(const StatementCheck& check);

}  // namespace corvane
