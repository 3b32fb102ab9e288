#pragma once

#include <memory>
#include <optional>

#include "support/Dates.h"
#include "windows/frame/Form.h"

namespace Ui {
class CalendarPopup;
}

namespace corvane {

/// A pop-up month from which a day is picked with the mouse or the keyboard.
class CalendarPopup : public Form {
  Q_OBJECT

 public:
  explicit CalendarPopup(WindowRegistry& registry);
  ~CalendarPopup() override;

  bool PlacesItself() const override { return true; }
  /// Shows the month of a date beside the mouse pointer, or beside the button that was pressed by a
  /// key, and returns when the pop-up has closed: the day that was picked, or nothing.
  std::optional<Date> PickDate(const Date& from, const QString& caption = {});

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void MoveTo(const Date& date);
  void SetChosen(bool isChosen);
  bool picMonth_KeyDown(const QKeyEvent& press);
  bool LabelPressed(QObject* label);
  void Choose();
  void Close();

  std::unique_ptr<Ui::CalendarPopup> ui_;
  bool dateChosen_ = false;
};

/// The title of the calendar that asks for the start or for the end date.
QString CalendarTitle(bool start);

}  // namespace corvane
