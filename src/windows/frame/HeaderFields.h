#pragma once

#include <string>
#include <utility>
#include <vector>

#include "account/AccountHeader.h"

class QLineEdit;
class QWidget;

namespace corvane {

/// The identification fields of a setup window, as far as it has them. What is typed goes into the
/// header at once, as it is typed.
class HeaderFields {
 public:
  /// The header has to outlive the window.
  HeaderFields(QWidget& window, AccountHeader& header);

  /// Puts the header into the fields.
  void Show() const;

 private:
  std::vector<std::pair<QLineEdit*, std::string*>> fields_;
};

}  // namespace corvane
