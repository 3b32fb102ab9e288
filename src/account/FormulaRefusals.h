#pragma once

#include "account/Refusal.h"

namespace corvane {

/// The withdrawal periods of the entries do not fill the term.
inline Refusal WithdrawalPeriodsDisagree() {
  return {.text = "Withdrawal periods do not agree with compound periods.", .field = {}};
}

/// The entries lead to no finite figure, or to more steps than any real account has.
inline Refusal NotComputable() {
  return {.text = "The entries give a result that cannot be computed. Please correct them.",
          .field = {}};
}

}  // namespace corvane
