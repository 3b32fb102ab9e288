#include "windows/frame/DateRange.h"

#include <QtWidgets>

#include "windows/frame/CalendarPopup.h"
#include "windows/frame/DateCount.h"
#include "windows/frame/DateKeys.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

DateRange::DateRange(Form& form, WindowRegistry& windows, QLineEdit* start, QLineEdit* end)
    : windows_(windows), start_(start), end_(end), count_(new DateCount(start)) {
  for (QLineEdit* field : {start, end}) {
    new DateKeys(field, [&form](const std::string& refusal) { form.ShowHint(refusal); });
  }
}

bool DateRange::Pick(bool start, const Date& from) const {
  const auto picked = windows_.Get<CalendarPopup>().PickDate(from, CalendarTitle(start));
  if (picked) SetText(Field(start), FormatDate(*picked));
  return picked.has_value();
}

void DateRange::ShowCount(const std::string& text) const {
  count_->Show(text);
}

}  // namespace corvane
