#pragma once

#include <QSize>

class QLineEdit;
class QMainWindow;
class QWidget;

namespace corvane {

/// The most characters that a field has to show at once, by what it holds.
struct FieldLength {
  static constexpr int kMoney = 16;  ///< "9999999999999.99"
  static constexpr int kRate = 8;    ///< "100.0000", in percent
  static constexpr int kCount = 6;   ///< days, months, years, periods
  static constexpr int kDate = 10;   ///< "12-31-2026"
  static constexpr int kFactor = 8;  ///< "1/365"
};

/// Makes a field as wide as so many digits of its font.
void FitToDigits(QLineEdit& field, int digits);

/// Whether the window shows a text that takes all the room there is, as a report does.
bool ShowsLongText(const QMainWindow& window);

/// Puts all that stands above the buttons of a window into a part whose rows close up where the
/// screen is too small for it, and that scrolls where that does not do, and follows the focus. The
/// buttons stay in sight, in two rows where one is too wide for the screen.
void LetBodyScroll(QMainWindow& window);

/// Fits what depends on the font: headings ("headingFactor" in the window's file), date fields.
/// Sets the columns of all grids below each other, so that nothing moves sideways when rows come
/// and go.
void LayOutPage(QWidget& window);

/// The size that all main windows share, from the font; the work area may allow less.
QSize PageSize(const QWidget& window);

}  // namespace corvane
