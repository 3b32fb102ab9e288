#include "windows/frame/TextLine.h"

#include <QtWidgets>

namespace corvane {

TextLine::TextLine(QWidget* parent, const char* name) : QLabel(parent) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void TextLine::SetLine(const QString& text) {
  // A message box breaks its lines; here they follow one another.
  const QString line = text.simplified();
  setText(line);
  setToolTip(line.toHtmlEscaped());
}

QSize TextLine::minimumSizeHint() const {
  return {0, QLabel::minimumSizeHint().height()};
}

void TextLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
  style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                        isEnabled(), shown, foregroundRole());
}

}  // namespace corvane
