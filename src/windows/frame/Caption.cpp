#include "windows/frame/Caption.h"

#include <QtWidgets>

namespace corvane {

bool Caption::EndsInColon() const {
  return text().trimmed().endsWith(':');
}

QString Caption::Words() const {
  static const QRegularExpression longRun(" {10,}");
  QString words = text().trimmed();
  if (words.endsWith(':')) words.chop(1);
  QStringList lines = words.trimmed().split(longRun);
  for (QString& line : lines) line = line.simplified();
  return lines.join('\n');
}

QSize Caption::sizeHint() const {
  const QString widest = EndsInColon() ? Words() + " :" : Words();
  return fontMetrics().size(Qt::TextShowMnemonic, widest).grownBy(contentsMargins());
}

void Caption::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  const auto draw = [&](Qt::Alignment side, const QString& words) {
    painter.drawItemText(contentsRect(), side | Qt::AlignVCenter | Qt::TextShowMnemonic, palette(),
                         isEnabled(), words, foregroundRole());
  };
  draw(Qt::AlignLeft, Words());
  if (EndsInColon()) draw(Qt::AlignRight, ":");
}

}  // namespace corvane
