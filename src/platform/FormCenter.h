#pragma once

class QWidget;

namespace corvane {

/// Places a window in the middle of the screen's work area.
class clsFormCenter {
 public:
  /// Moves the window; where the desktop places windows itself, nothing happens.
  void CenterForm(QWidget& window) const;
};

}  // namespace corvane
