#include "windows/frame/Colours.h"

#include <QPalette>

namespace corvane {

QPalette ReadableWhenDisabled(QPalette palette) {
  constexpr std::pair<QPalette::ColorRole, float> kFainter[] = {
      {QPalette::Text, 0.65F}, {QPalette::WindowText, 0.45F}, {QPalette::ButtonText, 0.45F}};
  for (const auto& [role, opacity] : kFainter) {
    QColor text = palette.color(QPalette::Active, role);
    text.setAlphaF(opacity);
    palette.setColor(QPalette::Disabled, role, text);
  }
  palette.setColor(QPalette::Disabled, QPalette::Base,
                   palette.color(QPalette::Active, QPalette::Window));
  return palette;
}

}  // namespace corvane
