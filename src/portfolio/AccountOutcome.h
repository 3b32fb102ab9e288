#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formulas/AccountTerms.h"
#include "formulas/CheckApy.h"
#include "portfolio/AccountRows.h"

namespace corvane {

/// What was found of an account or one end of its tier.
struct Figures {
  std::optional<double> interest;  ///< currency
  std::optional<double> apy;       ///< percent
  double disclosedApy = 0;         ///< percent, where there is an APY
  std::optional<Verdict> verdict;
};

/// What is written behind a row.
struct RowOutcome {
  Figures figures;  ///< of the low end, where the row is a tier by method B
  Figures highEnd;
  std::optional<double> average;  ///< of the daily balances of a statement, currency
  std::string note;     ///< what may be held against the row's figures, with the other ones
  std::string message;  ///< what a window tells of the row, with its line where it is refused
};

/// What came of an account: an outcome for each of its rows.
struct AccountOutcome {
  std::vector<RowOutcome> rows;
  bool isStatement = false;
  AccountKind kind = AccountKind::Regular;
  bool isRefused = false;
  bool isViolation = false;
};

/// Checks an account as the windows would.
AccountOutcome CheckAccount(const AccountRows& account);

}  // namespace corvane
