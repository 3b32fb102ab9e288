#include "support/Dates.h"

namespace corvane {

using namespace std::chrono;

namespace {

constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr int kFirstYear = 1901;
constexpr int kLastYear = 9999;

/// The number in text[first, first + length), or -1 where one of the places is no digit.
int DigitsAt(std::string_view text, std::size_t first, std::size_t length) {
  int number = 0;
  for (char c : text.substr(first, length)) {
    if (c < '0' || c > '9') return -1;
    number = number * 10 + (c - '0');
  }
  return number;
}

/// Puts a number into text[first, first + length), its last digit last.
void PutDigits(std::string& text, std::size_t first, std::size_t length, unsigned number) {
  for (std::size_t place = first + length; place-- > first; number /= 10) {
    text[place] = static_cast<char>('0' + number % 10);
  }
}

}  // namespace

std::optional<Date> ParseDate(std::string_view text) {
  if (text.size() != kEmptyDateMask.size() || text[2] != '-' || text[5] != '-') return std::nullopt;
  const int monthNumber = DigitsAt(text, 0, 2);
  const int dayNumber = DigitsAt(text, 3, 2);
  const int yearNumber = DigitsAt(text, 6, 4);
  if (monthNumber < 1 || dayNumber < 1) return std::nullopt;
  if (yearNumber < kFirstYear || yearNumber > kLastYear) return std::nullopt;
  const Date date{year{yearNumber}, month{static_cast<unsigned>(monthNumber)},
                  day{static_cast<unsigned>(dayNumber)}};
  return date.ok() ? std::optional<Date>{date} : std::nullopt;
}

std::string FormatDate(const Date& date) {
  std::string text(kEmptyDateMask);
  PutDigits(text, 0, 2, static_cast<unsigned>(date.month()));
  PutDigits(text, 3, 2, static_cast<unsigned>(date.day()));
  PutDigits(text, 6, 4, static_cast<unsigned>(static_cast<int>(date.year())));
  return text;
}

std::string FormatMonthDay(const Date& date) {
  const auto number = static_cast<unsigned>(date.month());
  return std::string(kMonths[number - 1]) + " " + std::to_string(static_cast<unsigned>(date.day()));
}

int DaysBetween(const Date& start, const Date& end) {
  return static_cast<int>((sys_days{end} - sys_days{start}).count());
}

Date AddMonths(const Date& date, int count) {
  const Date moved = date + months{count};
  return moved.ok() ? moved : Date{moved.year() / moved.month() / last};
}

Date AddDays(const Date& date, int count) {
  return Date{sys_days{date} + days{count}};
}

}  // namespace corvane
