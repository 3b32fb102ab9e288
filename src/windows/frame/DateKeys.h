#pragma once

#include <functional>
#include <string>

#include <QObject>

class QLineEdit;

namespace corvane {

/// Lets a date field with a mask understand separators and copied dates (see DateEntry.h).
class DateKeys : public QObject {
 public:
  /// `refuse` is told why a pasted text was not taken over.
  DateKeys(QLineEdit* field, std::function<void(const std::string&)> refuse);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Paste(const QString& text);
  void Complete();

  QLineEdit* field_;
  std::function<void(const std::string&)> refuse_;
};

}  // namespace corvane
