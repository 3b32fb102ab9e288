#pragma once

#include <optional>
#include <variant>

namespace corvane {

/// Why a formula has no result.
enum class Failure {
  WithdrawalPeriodsDisagree,  ///< the withdrawal periods do not fill the term
  NotComputable,  ///< a precondition fails, no account has such a figure, or it takes too many
                  ///< steps
};

/// A result, or why there is none.
template <class Value>
using Outcome = std::variant<Value, Failure>;

template <class Value>
std::optional<Failure> FailureOf(const Outcome<Value>& outcome) {
  const auto* failure = std::get_if<Failure>(&outcome);
  return failure ? std::optional(*failure) : std::nullopt;
}

}  // namespace corvane
