#pragma once

#include <memory>

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
  explicit CalendarPopup(WindowRegistry& windows);
  ~CalendarPopup() override;

  /// Shows the month of the date beside the mouse pointer and returns when the pop-up has closed:
  /// true when a day was picked, which the date then holds.
  bool GetDate(Date& date, const QString& caption = {});

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void PaintMonth();
  void PaintHighlight(QPainter& painter) const;
  void MoveTo(const Date& date);
  void PressDay(const QPointF& place);
  bool picMonth_KeyDown(int key);
  bool LabelPressed(QObject* label);
  void PlaceBesidePointer();
  QRectF CellRect(const Date& date) const;
  void Choose();
  void Close();

  std::unique_ptr<Ui::CalendarPopup> ui_;
  Date current_;
  bool dateChosen_ = false;
};

}  // namespace corvane
