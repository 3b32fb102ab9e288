#pragma once

#include <chrono>

namespace corvane {

/// How the rate of an account depends on time or balance. A tiered account pays one rate on the
/// whole balance (method A) or each tier's rate on the part that lies in the tier (method B).
enum class AccountKind { Regular, Stepped, TierA, TierB };

constexpr bool IsTiered(AccountKind kind) {
  return kind == AccountKind::TierA || kind == AccountKind::TierB;
}

/// What a length of time is measured in; None where nothing is measured.
enum class Unit { None, Days, Months, Years };

/// Interest compounds every so many units; with Unit::None it does not.
struct Compounding {
  Unit unit = Unit::None;
  int length = 1;  ///< N, 1 or more; always 1 without compounding
};

struct YearRule {
  int days = 365;  ///< 365 or 366
  bool countsLeapDay = false;
};

/// How Appendix A is read where a figure may be held against another one. As it stands here it is
/// the program's method; what a note compares it with is computed by one of the other readings.
struct Reading {
  bool compoundsByPeriods = false;  ///< every N days: once in N days, not every day (Part I.A)
  bool ownMonths = false;      ///< months as long as the calendar has them, not the beginning year
  bool ownYear = false;        ///< method B by YearRule::days, not 366 for a leap day (Part I.D)
  bool exactInterest = false;  ///< the APY of the interest before it is rounded to cents (Part I.A)
};

/// What holds for the whole account.
struct AccountTerms {
  Compounding compounding;
  Unit withdrawal = Unit::None;  ///< Days and Months where interest has to be withdrawn
  YearRule year;
  Reading reading = {};
};

/// Interest that has to be withdrawn: `periods` times in the term, `apart` months from each other.
struct Withdrawals {
  double periods = 0;  ///< W, a whole number
  double apart = 0;    ///< M, a whole number; read with Unit::Months only
};

/// One balance at one rate: a whole account, a period of a stepped one, or a tier.
struct Deposit {
  double balance = 0;       ///< currency, above 0
  double rate = 0;          ///< percent a year
  double term = 0;          ///< above 0: days without compounding, else N-unit periods
  double factorDays = 365;  ///< days of the year of the daily rate factor, above 0
  /// Where a term measured in months, or monthly withdrawals, begin to be counted.
  std::chrono::year_month begin{};
  Withdrawals withdrawals;
};

/// A tier reaches from its bound to the bound of the next one; the last has no end.
struct Tier {
  double above = 0;  ///< currency; 0 for the first tier
  double rate = 0;   ///< percent a year

  bool operator==(const Tier&) const = default;
};

}  // namespace corvane
