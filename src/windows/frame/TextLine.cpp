#include "windows/frame/TextLine.h"

#include <QtWidgets>

namespace corvane {

TextLine::TextLine(QWidget* parent, const char* name, int mostLines)
    : QLabel(parent), mostLines_(mostLines) {
  setObjectName(name);
  setTextFormat(Qt::PlainText);
  const bool wraps = mostLines > 1;
  setSizePolicy(QSizePolicy::Ignored, wraps ? QSizePolicy::Preferred : QSizePolicy::Fixed);
  setWordWrap(wraps);  // then the layout asks for the height
}

void TextLine::SetLine(const QString& text) {
  // A message box breaks its lines; here they follow one another.
  const QString line = text.simplified();
  setText(line);
  setToolTip(line.toHtmlEscaped());
}

QSize TextLine::sizeHint() const {
  return {0, fontMetrics().height()};
}

int TextLine::heightForWidth(int width) const {
  if (mostLines_ == 1) return -1;
  const auto lines = qMax(1, static_cast<int>(LinesAt(width).size()));
  return sizeHint().height() + (lines - 1) * fontMetrics().lineSpacing();
}

QStringList TextLine::LinesAt(int width) const {
  QStringList lines;
  QTextLayout layout(text(), font());
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    const bool isLast = lines.size() + 1 == mostLines_;
    const QString shown = text().mid(line.textStart(), isLast ? -1 : line.textLength());
    lines << fontMetrics().elidedText(shown.trimmed(), Qt::ElideRight, width);
    if (isLast) break;
  }
  layout.endLayout();
  return lines;
}

void TextLine::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString shown = LinesAt(contentsRect().width()).join('\n');
  style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(),
                        isEnabled(), shown, foregroundRole());
}

}  // namespace corvane
