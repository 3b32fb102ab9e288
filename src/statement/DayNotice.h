#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "statement/DailyBalances.h"

namespace corvane {

/// What is asked of a day whose balance, or typed rate, looks like a slip beside the last day
/// before it that has one.
std::optional<std::string> DayNotice(const DailyBalances& daily, std::size_t day);

}  // namespace corvane
