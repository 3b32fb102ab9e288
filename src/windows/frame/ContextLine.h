#pragma once

#include "windows/frame/TextLine.h"

namespace corvane {

/// The line above the fields of an entry window that says whose account it is, or which tier. A
/// warning is set off by its colour, in light and dark palettes.
class ContextLine : public TextLine {
  Q_OBJECT

 public:
  ContextLine(QWidget* parent, const char* name);

  void ShowContext(const std::string& text, bool warns = false);
};

}  // namespace corvane
