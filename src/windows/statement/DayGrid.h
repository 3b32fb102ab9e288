#pragma once

#include <array>

#include <QObject>

#include "statement/DayHistory.h"

class QFrame;
class QGridLayout;
class QLabel;
class QKeyEvent;
class QLineEdit;
class QWidget;

namespace corvane {

/// The days that the window works on, and the fields of one page of them, in three columns below
/// headings that the window's file has. The keys of a list move from day to day.
class DayGrid : public QObject {
  Q_OBJECT

 public:
  struct Row {
    QLabel* label;
    QLineEdit* balance;
    QLineEdit* rate;
  };

  /// Makes the fields; the frame owns them. Tab reaches them, day by day, behind the control.
  DayGrid(QFrame& frame, QGridLayout& layout, QWidget& behind);

  /// Makes the fields as wide as the longest amounts, or, with less room, so that the columns fit
  /// beside each other.
  void FitFields(bool hasRoom);

  const std::array<Row, kDaysPerPage>& Rows() const { return rows_; }
  QLineEdit* FieldAt(const DayPlace& place) const;
  /// The place of a field of the page; nothing for any other object, nor for a field without a day.
  std::optional<DayPlace> PlaceOf(const QObject* field) const;
  /// The place of the field of the page that has or last had the focus, else its first.
  const DayPlace& Place() const { return place_; }

  /// The days to work on, which have to outlive the grid's use.
  void Edit(DailyBalances& daily) { daily_ = &daily; }
  DailyBalances& Days() const { return *daily_; }

  /// Shows a page (1 to 3), with headings over the columns that have days.
  void ShowPage(int page);
  /// The page that was shown last.
  int Page() const { return page_; }

  /// Takes what a person did to the days, so that it can be taken back; false where that is
  /// nothing.
  bool Take(DailyBalances days);
  /// Takes a field that is left; true where it was changed.
  bool TakeField(const DayPlace& place);
  /// Takes all that stands on the page.
  void TakePage();
  /// Takes the latest change back: its first day, or nothing where there is none.
  std::optional<std::size_t> TakeBack();

 signals:
  /// A key goes on to the field of another day, which may be on another page or behind the last.
  void GoesTo(const DayPlace& place);
  /// The key that takes back, where the field has nothing of its own to take back.
  void TakesBack();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool HandlesKey(const DayPlace& place, const QKeyEvent& press);
  /// Whether a field holds something else than its day: then what is typed is its own to take back.
  bool IsTyping(const DayPlace& place) const;
  Row MakeRow(QFrame& frame, int index);
  void ShowRow(std::size_t row);
  std::size_t FirstDay() const { return kDaysPerPage * static_cast<std::size_t>(page_ - 1); }
  DayEntry Typed(std::size_t day) const;

  QGridLayout& layout_;
  std::array<Row, kDaysPerPage> rows_{};
  DailyBalances* daily_ = nullptr;
  DayHistory history_;
  DayPlace place_;
  int page_ = 1;
};

}  // namespace corvane
