#pragma once

#include <optional>
#include <string>

#include "account/Refusal.h"

namespace corvane {

struct SessionRecord;

/// The choices of the disclosure setup window, under the names of its controls.
struct AccountSetup {
  bool optICNone = false;
  bool optICDays = false;
  bool optICMonths = false;
  bool optICYears = false;
  bool optRegNoDisc = false;
  bool optStepRate = false;
  bool optTierA = false;
  bool optTierB = false;
  bool optRINotReq = false;
  bool OptRIDays = false;
  bool optRIMonths = false;
  bool optDY365 = false;
  bool optDY366 = false;
  bool optLYYes = false;
  bool optLYNo = false;
  std::string txtDailyCompounding;
};

/// Why Continue must not go on with these choices; nothing is stored then.
std::optional<Refusal> CheckSetup(const AccountSetup& setup);

/// Stores account type, compounding, withdrawals and year basis, and sets PeriodCount to 0. An
/// interval whose text is no number becomes "0" in the choices too.
void StoreSetup(SessionRecord& session, AccountSetup& setup);

/// Whether the entry window still fits the account: same account type as at the last Continue that
/// rebuilt it, with its data kept.
bool KeepsEntry(const SessionRecord& session);

/// The one stored combination that no formula serves: months between compoundings and between
/// withdrawals on an account tiered by method B.
std::optional<Refusal> CheckMonthsByMonths(const SessionRecord& session);

/// Stores days in the year and whether 29 February counts. A 366-day year always counts it; the
/// notice says so when the choice was "No", which then becomes "Yes".
std::optional<Refusal> StoreDaysInYear(SessionRecord& session, AccountSetup& setup);

/// Drops what was entered for an account: kept entries, the tier table and the counters over them.
void ForgetEntries(SessionRecord& session);

/// What New Account resets in the record; the institution is the caller's to keep.
void ResetForNewAccount(SessionRecord& session);

}  // namespace corvane
