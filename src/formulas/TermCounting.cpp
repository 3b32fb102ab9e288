#include "formulas/TermCounting.h"

#include <cmath>

#include "account/SessionRecord.h"
#include "support/Clock.h"

namespace corvane {

namespace {

constexpr int kFirstYear = 100;
constexpr int kLastYear = 9999;

Date DateAt(std::chrono::year year, unsigned month, unsigned day) {
  return Date{year, std::chrono::month{month}, std::chrono::day{day}};
}

/// The first day of a month, or of today's month where the numbers name none.
Date FirstOfMonth(int month, int year) {
  const bool named = month >= 1 && month <= 12 && year >= kFirstYear && year <= kLastYear;
  if (named) return DateAt(std::chrono::year{year}, static_cast<unsigned>(month), 1);
  const Date today = Today();
  return Date{today.year(), today.month(), std::chrono::day{1}};
}

int DaysOfMonthsFrom(int month, int months, int year, bool countLeapDay) {
  int days = 0;
  for (; months > 0; --months) {
    days += DaysInMonth(month, year, countLeapDay);
    month = MonthAfter(month, 1);
  }
  return days;
}

}  // namespace

bool dhIsLeapYear() {
  return dhIsLeapYear(Today());
}

bool dhIsLeapYear(const Date& date) {
  return date.year().is_leap();
}

bool dhIsLeapYear(double year) {
  const bool named = year >= kFirstYear && year <= kLastYear && year == std::floor(year);
  return named ? std::chrono::year{static_cast<int>(year)}.is_leap() : dhIsLeapYear();
}

std::int32_t DateSortKey(const Date& date) {
  const int dayOfYear = DaysBetween(DateAt(date.year(), 1, 1), date) + 1;
  return static_cast<int>(date.year()) * 100000 +
         static_cast<int>(static_cast<unsigned>(date.month())) * 1000 + dayOfYear;
}

std::int16_t CountLeapDays(const Date& start, const Date& end) {
  const std::int32_t startKey = DateSortKey(start);
  const std::int32_t endKey = DateSortKey(end);
  std::int16_t count = 0;
  for (std::chrono::year year = start.year(); year <= end.year(); ++year) {
    const Date leapDay = DateAt(year, 2, 29);
    if (!dhIsLeapYear(leapDay)) continue;
    const std::int32_t key = DateSortKey(leapDay);
    if (key >= startKey && key <= endKey) ++count;
  }
  return count;
}

int DaysInMonth(int month, int year, bool countLeapDay) {
  const Date first = FirstOfMonth(month, year);
  const int days = DaysBetween(first, AddMonths(first, 1));
  return days == 29 && !countLeapDay ? 28 : days;
}

void DaysInMonth(const SessionRecord& session, std::int16_t month, double& days) {
  days = DaysInMonth(month, session.BeginYear, session.CountLeapDay);
}

double CountMonthPeriodDays(int startMonth, int year, double periods, double monthsPerPeriod,
                            bool countLeapDay) {
  if (!(periods >= 1 && monthsPerPeriod >= 1)) return 0;
  const double months = std::floor(periods) * std::floor(monthsPerPeriod);
  if (!std::isfinite(months)) return months;
  // Every run of twelve months holds each month once, so whole years need no walk.
  const double wholeYears = std::floor(months / 12);
  const int restMonths = static_cast<int>(std::fmod(months, 12.0));
  return wholeYears * DaysOfMonthsFrom(1, 12, year, countLeapDay) +
         DaysOfMonthsFrom(startMonth, restMonths, year, countLeapDay);
}

void CountMonthPeriodDays(SessionRecord& session, std::int16_t startMonth, double periods,
                          double monthsPerPeriod) {
  session.MonthPeriodDays = CountMonthPeriodDays(startMonth, session.BeginYear, periods,
                                                 monthsPerPeriod, session.CountLeapDay);
}

int MonthAfter(int month, int months) {
  return (month - 1 + months % 12) % 12 + 1;
}

int CalendarTermDays(const Date& start, const Date& end, bool countLeapDay) {
  const int days = DaysBetween(start, end);
  return countLeapDay ? days : days - CountLeapDays(start, end);
}

int MonthTermDays(int beginMonth, int beginYear, int months, bool countLeapDay) {
  const Date start = FirstOfMonth(beginMonth, beginYear);
  return CalendarTermDays(start, AddMonths(start, months), countLeapDay);
}

}  // namespace corvane
