#pragma once

#include <string>
#include <string_view>

namespace corvane {

/// The header of a file that daily balances are written to.
inline constexpr const char* kDayColumns = "account,date,balance,rate";

/// Appends a row of such a file.
void AppendDayRow(std::string& text, std::string_view account, std::string_view date,
                  std::string_view balance, std::string_view rate);

/// Whether the columns of a header are those of daily balances: account, date and balance, and
/// nothing of an account but its rate.
bool IsDayHeader(std::string_view line);

}  // namespace corvane
