#pragma once

#include <optional>
#include <span>

#include "account/Field.h"
#include "account/Refusal.h"
#include "formulas/AccountTerms.h"

namespace corvane {

/// What the disclosure setup says of the account. A new one is what the main menu starts with: a
/// regular account with daily compounding and a year of 365 days.
struct DisclosureSetup {
  std::optional<AccountKind> kind = AccountKind::Regular;
  Unit compounding = Unit::Days;
  Field txtDailyCompounding{.text = "1"};  ///< units between compoundings
  Unit withdrawal = Unit::None;            ///< None, Days or Months
  YearRule year;

  static std::span<const FieldName<DisclosureSetup>> Fields();
  static std::span<const OptionName<DisclosureSetup>> Options();

  bool IsTiered() const { return kind && corvane::IsTiered(*kind); }
};

// What choosing an option does to the rest of the setup.
void ChooseCompounding(DisclosureSetup& setup, Unit unit);
void ChooseYearDays(DisclosureSetup& setup, int days);

/// New Account of the setup window: no compounding and an empty interval in a year of 365 days.
DisclosureSetup EmptiedSetup(DisclosureSetup setup);

/// Which groups of the setup window show.
struct SetupGroups {
  bool interval = false;
  bool year = false;        ///< days in the year and 29 February
  bool withdrawal = false;  ///< measurement of required withdrawals
  bool withdrawalByDays = false;
};
SetupGroups GroupsOf(const DisclosureSetup& setup);

/// lblDailyCompounding and lblCompoundingNotes; empty where the interval does not show.
struct IntervalCaptions {
  const char* label = "";
  const char* note = "";
};
IntervalCaptions CaptionsOf(const DisclosureSetup& setup);

/// Why Continue must not go on with these choices.
std::optional<Refusal> CheckSetup(const DisclosureSetup& setup);

/// N as the entries mean it: 1 without compounding and for an interval below 1.
int PeriodLength(const DisclosureSetup& setup);

/// What holds for the whole account, as the formulas take it.
AccountTerms TermsOf(const DisclosureSetup& setup);

}  // namespace corvane
