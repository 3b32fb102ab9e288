#pragma once

#include <optional>
#include <span>
#include <string>

#include "account/Field.h"
#include "account/Refusal.h"
#include "formulas/AccountTerms.h"

namespace corvane {

/// What the statement setup says of the account. A new one is a regular account without
/// compounding and a year of 365 days.
struct StatementSetup {
  AccountKind kind = AccountKind::Regular;
  Unit compounding = Unit::None;  ///< None or Days
  YearRule year;
  bool additionalFormula = false;                       ///< the additional APY formula applies
  Field txtDCompounding{.text = {}, .enabled = false};  ///< days between compoundings
  Field txtDCPeriod{.text = {}, .enabled = false};      ///< days of its compounding period
  bool leapDayOpen = false;  ///< the choice of 29 February, once a compounding was chosen

  static std::span<const FieldName<StatementSetup>> Fields();
  static std::span<const OptionName<StatementSetup>> Options();

  bool IsOpen(const char* control) const { return corvane::IsOpen(*this, control); }
  /// The additional formula is for accounts without compounding.
  bool OffersAdditionalFormula() const { return compounding == Unit::None; }
};

/// The setup as the main menu opens it: interest compounds by days.
StatementSetup StatementSetupAtStart();

// What choosing an option does to the rest of the setup.
void ChooseCompounding(StatementSetup& setup, Unit unit);
void ChooseYearDays(StatementSetup& setup, int days);
void ChooseAdditionalFormula(StatementSetup& setup, bool yes);

/// Why Continue must not go on with the setup.
std::optional<Refusal> CheckSetup(const StatementSetup& setup);

/// N, the days between compoundings: 0 without compounding, else 1 or more.
int CompoundingDays(const StatementSetup& setup);

/// Stepped accounts and the additional APY formula earn by the daily balance method only.
bool LocksMethod(const StatementSetup& setup);

/// The kind of account and its compounding, as the period window shows them.
std::string AccountInfoText(const StatementSetup& setup);

}  // namespace corvane
