#include "windows/frame/Caption.h"

#include <QtWidgets>

namespace corvane {

bool Caption::EndsInColon() const {
  return text().trimmed().endsWith(':');
}

QString Caption::Words() const {
  static const QRegularExpression longRun(" {10,}");
  static const QRegularExpression longRunOrRemark(" {10,}| (?=\\()");
  QString words = text().trimmed();
  if (words.endsWith(':')) words.chop(1);
  QStringList lines = words.trimmed().split(wordWrap() ? longRunOrRemark : longRun);
  for (QString& line : lines) line = line.simplified();
  return lines.join('\n');
}

int Caption::Flags() const {
  return Qt::TextShowMnemonic | (wordWrap() ? Qt::TextWordWrap : 0);
}

QSize Caption::sizeHint() const {
  constexpr int kCharacters = 28;
  const QFontMetrics metrics = fontMetrics();
  const int width = wordWrap() ? kCharacters * metrics.averageCharWidth() : QWIDGETSIZE_MAX;
  const QSize words = metrics.boundingRect(0, 0, width, QWIDGETSIZE_MAX, Flags(), Words()).size();
  const int colon = EndsInColon() ? metrics.horizontalAdvance(" :") : 0;
  return QSize(words.width() + colon, words.height()).grownBy(contentsMargins());
}

void Caption::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  const auto draw = [&](Qt::Alignment side, const QString& words) {
    const int flags = static_cast<int>((side | Qt::AlignVCenter).toInt()) | Flags();
    painter.drawItemText(contentsRect(), flags, palette(), isEnabled(), words, foregroundRole());
  };
  draw(Qt::AlignLeft, Words());
  if (EndsInColon()) draw(Qt::AlignRight, ":");
}

}  // namespace corvane
