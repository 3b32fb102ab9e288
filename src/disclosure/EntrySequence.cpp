#include "disclosure/EntrySequence.h"

#include "account/SessionRecord.h"
#include "disclosure/EntryLayout.h"
#include "disclosure/EntryTerm.h"
#include "disclosure/PeriodStore.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

using FieldOf = EntryField DisclosureEntry::*;

constexpr int kMonthsOfYear = 12;

/// By method B these are typed with the first entry and hold for all.
constexpr FieldOf kTypedOnceByMethodB[] = {
    &DisclosureEntry::txtBeginMonth,   &DisclosureEntry::txtBeginYear,
    &DisclosureEntry::txtTerm,         &DisclosureEntry::txtDailyRateFactor,
    &DisclosureEntry::tStartDate,      &DisclosureEntry::tEndDate,
    &DisclosureEntry::txtWdrwlPeriods, &DisclosureEntry::txtBtwnReqIntWdrwl};

bool IsStored(const SessionRecord& session, int entry) {
  return session.PerPeriodNo.At(entry) == entry;
}

/// Months from the begin of a stored period to its end, where months measure it at all.
int MonthsOf(const SessionRecord& session, int period) {
  const double months = session.CompoundMonths ? PeriodLength(session) * session.PerTerm.At(period)
                                               : session.PerWdrwlPeriods.At(period) *
                                                     session.PerBtwnReqIntWdrwl.At(period);
  return static_cast<int>(months);
}

/// Month and year in which a period begins that follows on the stored one before it.
void BeginWherePreviousEnded(const SessionRecord& session, int previous, DisclosureEntry& entry) {
  const int months = MonthsOf(session, previous);
  const int begin = session.PerBeginMonth.At(previous) - 1 + months;
  entry.txtBeginMonth.text = FormatTwoDigits(begin % kMonthsOfYear + 1);
  entry.txtBeginYear.text = FormatPlain(session.PerBeginYear.At(previous) + begin / kMonthsOfYear);
}

/// A period or tier that was not entered yet.
DisclosureEntry NewEntry(const SessionRecord& session, const DisclosureEntry& shown) {
  DisclosureEntry entry = shown;
  entry.tStartDate.text = entry.tEndDate.text = kEmptyDateMask;
  const int current = CurrentEntry(session);
  if (current == 1) return entry;
  if (IsTiered(session)) {
    entry.txtBal.text.clear();
    entry.txtDiscAPY.text.clear();
  } else {
    entry.txtIntRateA.text.clear();
    if (GroupsFor(session).dateRange) BeginWherePreviousEnded(session, current - 1, entry);
  }
  return entry;
}

void Fix(EntryField& field, std::string text) {
  field = {std::move(text), false};
}

/// Number of periods, balance and disclosed APY belong to the account and stand with its first
/// period.
void FixForStepped(const SessionRecord& session, DisclosureEntry& entry) {
  if (CurrentEntry(session) == 1) return;
  const DisclosureEntry first = StoredEntry(session, 1);
  Fix(entry.txtTierPerNum, std::to_string(session.TierPerNum));
  Fix(entry.txtBal, first.txtBal.text);
  Fix(entry.txtDiscAPY, first.txtDiscAPY.text);
}

/// The balance at which a tier end is verified; nothing for the high end of the last tier, which
/// has no bound.
std::optional<double> BoundOf(const SessionRecord& session, int entry) {
  const int tier = TierOfEntry(entry);
  if (EndOfEntry(entry) == TierEnd::Low) return session.TierAbove.At(tier) + 0.01;
  if (tier == session.TotalTiers) return std::nullopt;
  return session.TierNotExceeding.At(tier);
}

void FixForMethodB(const SessionRecord& session, DisclosureEntry& entry) {
  const int current = CurrentEntry(session);
  if (const auto bound = BoundOf(session, current)) Fix(entry.txtBal, FormatFixed2(*bound));
  if (current == 1) return;
  const DisclosureEntry first = StoredEntry(session, 1);
  for (FieldOf field : kTypedOnceByMethodB) Fix(entry.*field, (first.*field).text);
}

void FixForTiers(const SessionRecord& session, DisclosureEntry& entry) {
  const int current = CurrentEntry(session);
  const int tier = session.AcctTierB ? TierOfEntry(current) : current;
  Fix(entry.txtTierPerNum, std::to_string(session.TotalTiers));
  Fix(entry.txtIntRateA, FormatRate(session.TierRate.At(tier)));
  if (session.AcctTierB) FixForMethodB(session, entry);
}

/// What the account has no use for is emptied, so that nothing stale is computed or printed.
void EmptyUnusedGroups(const SessionRecord& session, DisclosureEntry& entry) {
  const EntryGroups groups = GroupsFor(session);
  if (!groups.periodNumber) Fix(entry.txtTierPerNum, "");
  if (!groups.dateRange) {
    Fix(entry.txtBeginMonth, "");
    Fix(entry.txtBeginYear, "");
  }
  if (!groups.termDates) {
    Fix(entry.tStartDate, std::string(kEmptyDateMask));
    Fix(entry.tEndDate, std::string(kEmptyDateMask));
  }
  if (!groups.withdrawal) {
    Fix(entry.txtWdrwlPeriods, "");
    Fix(entry.txtBtwnReqIntWdrwl, "");
  }
}

void PutFactor(const SessionRecord& session, DisclosureEntry& entry) {
  const std::string stored = session.PerDailyRateFactor.At(1);
  std::string& text = entry.txtDailyRateFactor.text;
  if (Trim(text).empty()) text = stored;
  text = FactorFor(session, text);
  if (GroupsFor(session).factorFixed) entry.txtDailyRateFactor.enabled = false;
}

}  // namespace

bool IsTiered(const SessionRecord& session) {
  return session.AcctTierA || session.AcctTierB;
}

int EntryCount(const SessionRecord& session) {
  if (session.AcctStepped) return session.TierPerNum;
  if (session.AcctTierA) return session.TotalTiers;
  if (session.AcctTierB) return 2 * session.TotalTiers - 1;
  return 1;
}

int CurrentEntry(const SessionRecord& session) {
  return session.PeriodCount + 1;
}

bool IsLastEntry(const SessionRecord& session) {
  // The number of stepped periods is known once the first one was completed.
  if (session.AcctStepped && session.PeriodCount == 0) return false;
  return CurrentEntry(session) >= EntryCount(session);
}

int EntryBehindResults(const SessionRecord& session) {
  const bool periodsRemain = session.AcctStepped && session.PeriodCount < EntryCount(session);
  return periodsRemain ? CurrentEntry(session) : session.PeriodCount;
}

int TierOfEntry(int entry) {
  return entry / 2 + 1;
}

TierEnd EndOfEntry(int entry) {
  return entry % 2 == 0 ? TierEnd::Low : TierEnd::High;
}

void NumberCurrentEntry(SessionRecord& session) {
  const int current = CurrentEntry(session);
  session.PeriodNumber =
      static_cast<std::int16_t>(session.AcctTierB ? TierOfEntry(current) : current);
}

DisclosureEntry PresentEntry(const SessionRecord& session, const DisclosureEntry& shown) {
  const int current = CurrentEntry(session);
  DisclosureEntry entry =
      IsStored(session, current) ? StoredEntry(session, current) : NewEntry(session, shown);
  for (const EntryFieldName& known : kEntryFields) (entry.*known.field).enabled = true;
  entry.txtTierPerNum.text = shown.txtTierPerNum.text;
  PutFactor(session, entry);
  if (session.AcctStepped) FixForStepped(session, entry);
  if (IsTiered(session)) FixForTiers(session, entry);
  EmptyUnusedGroups(session, entry);
  entry.tStartDate.enabled = entry.tEndDate.enabled = TermDatesEnabled(session, entry.txtTerm.text);
  return entry;
}

bool IsWorthKeeping(const SessionRecord& session, const DisclosureEntry& entry) {
  const int current = CurrentEntry(session);
  const EntryField& typed = IsTiered(session) ? entry.txtDiscAPY : entry.txtIntRateA;
  return current == 1 || IsStored(session, current) || !Trim(typed.text).empty();
}

bool TermDatesEnabled(const SessionRecord& session, const std::string& term) {
  const bool typedBefore = session.AcctTierB && CurrentEntry(session) > 1;
  return HasCalendar(session) && AsksForCalendar(term) && !typedBefore;
}

void TakePeriodNumber(SessionRecord& session, const DisclosureEntry& entry) {
  const auto number = WholeNumber(entry.txtTierPerNum.text).value_or(0);
  if (!session.AcctStepped || number == session.TierPerNum) return;
  session.TierPerNum = number;
  for (int period = 2; period <= session.PerPeriodNo.Last(); ++period) {
    session.PerPeriodNo.Set(period, 0);
  }
}

}  // namespace corvane
