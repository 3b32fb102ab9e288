#pragma once

#include <chrono>

class QWidget;

namespace corvane {

/// Lets a screen reader find the days in the painted months of the calendars: a month is a list,
/// its days are the items, and the current one has the focus.
void MakeMonthsAccessible();

/// Lets a screen reader read the day that a month has come to.
void TellOfCurrentDay(QWidget& month, std::chrono::day day);

}  // namespace corvane
