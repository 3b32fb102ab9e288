#include "account/DateEntry.h"

#include <algorithm>

#include "formulas/TermCounting.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

constexpr std::string_view kSeparators = "/-.";
constexpr std::size_t kDayPlace = 3;
constexpr std::size_t kYearPlace = 6;
constexpr std::size_t kYearLength = 4;

bool IsNumberOf(std::string_view text, std::size_t digits) {
  return text.size() == digits && text.find_first_not_of("0123456789") == text.npos;
}

/// The year that was typed into the places of month and day, which cannot be those; else empty.
std::string YearTypedFirst(const std::string& text) {
  const std::string year = text.substr(0, 2) + text.substr(kDayPlace, 2);
  const bool isYear = IsNumberOf(year, kYearLength) && text.substr(0, 2) > "12";
  return isYear ? year : "";
}

std::string TwoDigits(std::string_view part) {
  return (part.size() == 1 ? "0" : "") + std::string(part);
}

std::optional<Date> DateOf(std::string_view month, std::string_view day, std::string_view year) {
  return ParseDate(TwoDigits(month) + "-" + TwoDigits(day) + "-" + std::string(year));
}

std::string DayText(const Date& date, bool withYear) {
  if (!withYear) return FormatMonthDay(date);
  return FormatMonthDay(date) + ", " + std::to_string(static_cast<int>(date.year()));
}

std::string NotCountedText(int leapDays) {
  if (leapDays == 0) return " (end date not counted)";
  const std::string times = leapDays == 1 ? "" : std::to_string(leapDays) + " times ";
  return " (end date and " + times + "Feb 29 not counted)";
}

}  // namespace

bool IsDateSeparator(std::string_view typed) {
  return typed.size() == 1 && kSeparators.find(typed.front()) != kSeparators.npos;
}

MaskedDate AfterSeparator(const MaskedDate& typed) {
  const auto cursor = static_cast<std::size_t>(typed.cursor);
  if (cursor >= kYearPlace) {
    const std::string year = cursor == kYearPlace ? YearTypedFirst(typed.text) : "";
    return year.empty() ? typed : MaskedDate{"__-__-" + year, 0};
  }
  const std::size_t part = cursor < kDayPlace ? 0 : kDayPlace;
  std::string digits = typed.text.substr(part, std::min<std::size_t>(cursor - part, 2));
  std::erase(digits, '_');
  if (digits.empty()) return typed;
  MaskedDate completed{typed.text, static_cast<int>(part + kDayPlace)};
  completed.text.replace(part, 2, TwoDigits(digits));
  return completed;
}

std::optional<Date> ReadPastedDate(std::string_view pasted) {
  const std::string plain = WithKeyboardSigns(pasted);
  const std::string_view text = Trim(plain);
  if (IsNumberOf(text, 8)) return DateOf(text.substr(0, 2), text.substr(2, 2), text.substr(4));
  const auto first = text.find_first_of(kSeparators);
  if (first == text.npos) return std::nullopt;
  const auto second = text.find(text[first], first + 1);
  if (second == text.npos) return std::nullopt;
  const std::string_view parts[] = {
      text.substr(0, first), text.substr(first + 1, second - first - 1), text.substr(second + 1)};
  if (parts[0].size() == kYearLength) return DateOf(parts[1], parts[2], parts[0]);
  return DateOf(parts[0], parts[1], parts[2]);
}

std::string DateCountText(const Date& start, const Date& end, bool countsLeapDay) {
  const int days = CalendarTermDays(start, end, countsLeapDay);
  const Date last = AddDays(end, -1);
  const bool withYear = start.year() != last.year();
  const std::string span = last <= start
                               ? DayText(start, false)
                               : DayText(start, withYear) + " to " + DayText(last, withYear);
  return std::to_string(days) + (days == 1 ? " day, " : " days, ") + span +
         NotCountedText(DaysBetween(start, end) - days);
}

}  // namespace corvane
