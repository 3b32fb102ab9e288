#include "disclosure/EntrySequence.h"

#include "account/DailyRateFactor.h"
#include "disclosure/EntryLayout.h"
#include "disclosure/EntryNumbers.h"
#include "disclosure/EntryTerm.h"

namespace corvane {

namespace {

using FieldOf = Field DisclosureEntry::*;

constexpr double kLowEnd = 0.01;  ///< how far above its bound a tier begins

/// By method B these are typed with the first entry and hold for all.
constexpr FieldOf kTypedOnceByMethodB[] = {
    &DisclosureEntry::txtBeginMonth,   &DisclosureEntry::txtBeginYear,
    &DisclosureEntry::txtTerm,         &DisclosureEntry::txtDailyRateFactor,
    &DisclosureEntry::tStartDate,      &DisclosureEntry::tEndDate,
    &DisclosureEntry::txtWdrwlPeriods, &DisclosureEntry::txtBtwnReqIntWdrwl};

/// How the numbers of an entry read when it is shown again.
constexpr std::pair<FieldOf, std::string (*)(double)> kFormats[] = {
    {&DisclosureEntry::txtBeginMonth, FormatTwoDigits},
    {&DisclosureEntry::txtBeginYear, FormatTwoDigits},
    {&DisclosureEntry::txtBal, FormatFixed2},
    {&DisclosureEntry::txtIntRateA, FormatRate},
    {&DisclosureEntry::txtDiscAPY, FormatFixed2},
    {&DisclosureEntry::txtTerm, FormatPlain},
    {&DisclosureEntry::txtWdrwlPeriods, FormatPlain},
    {&DisclosureEntry::txtBtwnReqIntWdrwl, FormatPlain},
};

bool IsKept(const DisclosureCheck& check, int entry) {
  return entry <= static_cast<int>(check.entries.size());
}

DisclosureEntry KeptEntry(const DisclosureCheck& check, int number) {
  DisclosureEntry entry = check.entries.at(static_cast<std::size_t>(number - 1));
  for (const auto& [field, format] : kFormats) {
    Field& shown = entry.*field;
    if (shown.IsNumber()) shown.text = format(shown.Value());
  }
  return entry;
}

/// Months from the begin of an entry to its end, where months measure it at all.
double MonthsOf(const DisclosureSetup& setup, const DisclosureEntry& entry) {
  if (setup.compounding == Unit::Months) return PeriodLength(setup) * entry.txtTerm.Value();
  return entry.txtWdrwlPeriods.Value() * entry.txtBtwnReqIntWdrwl.Value();
}

void BeginWherePreviousEnded(const DisclosureSetup& setup, DisclosureEntry& entry) {
  const std::chrono::year_month began = EntryNumbers(entry).Begin();
  if (!began.ok()) return;
  const std::chrono::months months{static_cast<int>(MonthsOf(setup, entry))};
  const std::chrono::year_month begin = began + months;
  entry.txtBeginMonth.text = FormatTwoDigits(static_cast<unsigned>(begin.month()));
  entry.txtBeginYear.text = FormatPlain(static_cast<int>(begin.year()));
}

/// An entry behind the first that was not made yet.
DisclosureEntry NextEntry(const DisclosureCheck& check) {
  DisclosureEntry entry = KeptEntry(check, check.completed);
  entry.tStartDate.text = entry.tEndDate.text = kEmptyDateMask;
  entry.txtTerm.workedOut = false;  // by the dates of the entry before
  if (check.setup.IsTiered()) {
    entry.txtBal.text.clear();
    entry.txtDiscAPY.text.clear();
  } else {
    entry.txtIntRateA.text.clear();
    if (GroupsFor(check.setup).dateRange) BeginWherePreviousEnded(check.setup, entry);
  }
  return entry;
}

void Fix(Field& field, std::string_view text) {
  field.text = text;
  field.enabled = field.workedOut = false;
}

/// Number of periods, balance and disclosed APY belong to the account and stand with its first
/// period.
void FixForStepped(const DisclosureCheck& check, DisclosureEntry& entry) {
  if (CurrentEntry(check) == 1) return;
  const DisclosureEntry first = KeptEntry(check, 1);
  Fix(entry.txtTierPerNum, std::to_string(EntryCount(check)));
  Fix(entry.txtBal, first.txtBal.text);
  Fix(entry.txtDiscAPY, first.txtDiscAPY.text);
}

/// The balance at which a tier end is verified; nothing for the high end of the last tier, which
/// has no bound.
std::optional<double> BoundOf(const std::vector<Tier>& tiers, int entry) {
  const auto tier = static_cast<std::size_t>(TierOfEntry(entry));
  if (IsLowEnd(entry)) return tiers.at(tier - 1).above + kLowEnd;
  if (tier == tiers.size()) return std::nullopt;
  return tiers.at(tier).above;
}

void FixForMethodB(const DisclosureCheck& check, DisclosureEntry& entry) {
  const int current = CurrentEntry(check);
  if (const auto bound = BoundOf(TiersOf(check.tiers), current)) {
    Fix(entry.txtBal, FormatFixed2(*bound));
  }
  if (current == 1) return;
  const DisclosureEntry first = KeptEntry(check, 1);
  for (FieldOf field : kTypedOnceByMethodB) Fix(entry.*field, (first.*field).text);
}

void FixForTiers(const DisclosureCheck& check, DisclosureEntry& entry) {
  const auto tier = static_cast<std::size_t>(PeriodOrTier(check));
  Fix(entry.txtTierPerNum, std::to_string(check.tiers.count));
  Fix(entry.txtIntRateA, FormatRate(TiersOf(check.tiers).at(tier - 1).rate));
  if (check.setup.kind == AccountKind::TierB) FixForMethodB(check, entry);
}

/// What the account has no use for is emptied, so that nothing stale is computed or printed.
void EmptyUnusedGroups(const DisclosureSetup& setup, DisclosureEntry& entry) {
  const EntryGroups groups = GroupsFor(setup);
  if (!groups.periodNumber) Fix(entry.txtTierPerNum, "");
  if (!groups.dateRange) {
    Fix(entry.txtBeginMonth, "");
    Fix(entry.txtBeginYear, "");
  }
  if (!groups.termDates) {
    Fix(entry.tStartDate, kEmptyDateMask);
    Fix(entry.tEndDate, kEmptyDateMask);
  }
  if (!groups.withdrawal) {
    Fix(entry.txtWdrwlPeriods, "");
    Fix(entry.txtBtwnReqIntWdrwl, "");
  }
}

void PutFactor(const DisclosureSetup& setup, Field& factor) {
  const bool isFixed = GroupsFor(setup).factorFixed;
  if (isFixed || factor.IsEmpty()) factor.text = DefaultFactor(setup.year.days);
  factor.enabled = !isFixed;
}

}  // namespace

int EntryCount(const DisclosureCheck& check) {
  switch (check.setup.kind.value_or(AccountKind::Regular)) {
    case AccountKind::Regular:
      return 1;
    case AccountKind::Stepped:
      if (check.entries.empty()) return 0;
      return WholeNumber(check.entries.front().txtTierPerNum.text).value_or(0);
    case AccountKind::TierA:
      return check.tiers.count;
    case AccountKind::TierB:
      return 2 * check.tiers.count - 1;
  }
  return 1;
}

int CurrentEntry(const DisclosureCheck& check) {
  return check.completed + 1;
}

int PeriodOrTier(const DisclosureCheck& check) {
  const int current = CurrentEntry(check);
  return check.setup.kind == AccountKind::TierB ? TierOfEntry(current) : current;
}

bool IsLastEntry(const DisclosureCheck& check) {
  if (check.setup.kind == AccountKind::Stepped && check.completed == 0) return false;
  return CurrentEntry(check) >= EntryCount(check);
}

int EntryBehindResults(const DisclosureCheck& check) {
  const bool periodsRemain =
      check.setup.kind == AccountKind::Stepped && check.completed < EntryCount(check);
  return periodsRemain ? CurrentEntry(check) : check.completed;
}

int TierOfEntry(int entry) {
  return entry / 2 + 1;
}

bool IsLowEnd(int entry) {
  return entry % 2 == 0;
}

DisclosureEntry PresentEntry(const DisclosureCheck& check) {
  const int current = CurrentEntry(check);
  DisclosureEntry entry;
  if (IsKept(check, current)) {
    entry = KeptEntry(check, current);
  } else if (current > 1) {
    entry = NextEntry(check);
  }
  for (const auto& name : DisclosureEntry::Fields()) (entry.*name.field).enabled = true;
  PutFactor(check.setup, entry.txtDailyRateFactor);
  if (check.setup.kind == AccountKind::Stepped) FixForStepped(check, entry);
  if (check.setup.IsTiered()) FixForTiers(check, entry);
  EmptyUnusedGroups(check.setup, entry);
  entry.tStartDate.enabled = entry.tEndDate.enabled = TermDatesEnabled(check, entry.txtTerm);
  return entry;
}

void KeepEntry(DisclosureCheck& check, const DisclosureEntry& entry) {
  const auto place = static_cast<std::size_t>(check.completed);
  const int count = EntryCount(check);
  if (place == check.entries.size()) {
    check.entries.push_back(entry);
  } else {
    check.entries.at(place) = entry;
  }
  const bool voidsOthers = check.setup.kind == AccountKind::Stepped && EntryCount(check) != count;
  if (voidsOthers) check.entries.resize(1);
}

bool IsWorthKeeping(const DisclosureCheck& check, const DisclosureEntry& entry) {
  const int current = CurrentEntry(check);
  const Field& typed = check.setup.IsTiered() ? entry.txtDiscAPY : entry.txtIntRateA;
  return current == 1 || IsKept(check, current) || !typed.IsEmpty();
}

bool TermDatesEnabled(const DisclosureCheck& check, const Field& term) {
  const bool typedBefore = check.setup.kind == AccountKind::TierB && CurrentEntry(check) > 1;
  return HasCalendar(check.setup) && AsksForCalendar(term) && !typedBefore;
}

}  // namespace corvane
