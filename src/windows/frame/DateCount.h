#pragma once

#include <QLabel>

namespace corvane {

/// The line below two dates that says what they count. It keeps its place while it is empty.
class DateCount : public QLabel {
 public:
  /// Stands below the row that holds the field.
  explicit DateCount(QWidget* field);

  void Show(const std::string& text);
};

}  // namespace corvane
