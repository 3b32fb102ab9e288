#pragma once

#include <string>

#include "support/Dates.h"

class QLineEdit;

namespace corvane {

class DateCount;
class Form;
class WindowRegistry;

/// The start and end date of an entry window: two masked fields that understand separators and
/// copied dates and take a day from the calendar, and the line below them that says what they
/// count.
class DateRange {
 public:
  DateRange(Form& form, WindowRegistry& windows, QLineEdit* start, QLineEdit* end);

  QLineEdit* Field(bool start) const { return start ? start_ : end_; }

  /// Lets the person pick the start or the end date in a calendar that opens at a date; true when a
  /// day was picked. A calendar that is closed without one keeps the date that there was.
  bool Pick(bool start, const Date& from) const;

  /// What the dates count; an empty text keeps its place.
  void ShowCount(const std::string& text) const;

 private:
  WindowRegistry& windows_;
  QLineEdit* start_;
  QLineEdit* end_;
  DateCount* count_;
};

}  // namespace corvane
