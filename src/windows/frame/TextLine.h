#pragma once

#include <QLabel>

namespace corvane {

/// One line of text, or as many as it may have, that never makes its window wider: what does not
/// fit is cut off with "…" on the screen and stands whole in the tool tip and for screen readers.
class TextLine : public QLabel {
  Q_OBJECT

 public:
  explicit TextLine(QWidget* parent, const char* name = "", int mostLines = 1);

  void SetLine(const QString& text);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// The text as it is broken at a width; the last line ends with "…" where more would follow.
  QStringList LinesAt(int width) const;

  int mostLines_;
};

}  // namespace corvane
