#pragma once

#include <vector>

#include <QString>

class QWidget;

namespace corvane {

/// A caption as it is read aloud: without the mark of its access key, the colon at its end and
/// blanks that only pad it.
QString CaptionText(QString caption);

/// What a screen reader calls the controls of a window. A field or group of options has the name of
/// the label that it is the buddy of; a label, button or group box that of its own text. A control
/// with an accessible name of its own keeps that.
class Captions {
 public:
  explicit Captions(const QWidget& window);

  /// Gives the names anew: some captions follow what was chosen.
  void Name();

 private:
  struct Named {
    const QWidget* caption;
    QWidget* control;
    QString name;
  };
  void Add(const QWidget* caption, QWidget* control);

  std::vector<Named> named_;
};

/// Lets a group of options be one to a screen reader, where its frame would be a mere border.
void MakeOptionGroupsAccessible();

}  // namespace corvane
