#pragma once

#include <QLabel>

namespace corvane {

/// One line of text that never makes its window wider: what does not fit is cut off with "…" on the
/// screen and stands whole in the tool tip and for screen readers.
class TextLine : public QLabel {
  Q_OBJECT

 public:
  TextLine(QWidget* parent, const char* name);

  void SetLine(const QString& text);

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace corvane
