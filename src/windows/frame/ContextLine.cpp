#include "windows/frame/ContextLine.h"

namespace corvane {

namespace {

/// Palettes have no colour for warnings: a dark red on light windows, a light one on dark windows.
QColor WarningColor(const QPalette& palette) {
  constexpr int kMiddle = 128;
  const bool isDark = palette.color(QPalette::Window).lightness() < kMiddle;
  return isDark ? QColor(0xff, 0x9d, 0x8a) : QColor(0xa8, 0x10, 0x10);
}

/// Names that a person typed may be long, and letters large.
constexpr int kMostLines = 2;

}  // namespace

ContextLine::ContextLine(QWidget* parent, const char* name) : TextLine(parent, name, kMostLines) {}

void ContextLine::ShowContext(const std::string& text, bool warns) {
  SetLine(QString::fromStdString(text));
  QPalette colors;
  if (warns) colors.setColor(foregroundRole(), WarningColor(palette()));
  setPalette(colors);
}

}  // namespace corvane
