#pragma once

#include <vector>

#include <QObject>

class QWidget;

namespace corvane {

/// A caption as it is read aloud: without the mark of its access key, the colon at its end and
/// blanks that only pad it.
QString CaptionText(QString caption);

/// What a screen reader calls the controls of a window. A field or group of options has the name of
/// the label that it is the buddy of; a label, button or group box that of its own text. A control
/// with an accessible name of its own keeps that. The names follow captions that change, as some do
/// with what was chosen.
class Captions : public QObject {
 public:
  explicit Captions(const QWidget& window);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Name();

  struct Named {
    const QWidget* caption;
    QWidget* control;
    QString name;
  };
  void Add(const QWidget* caption, QWidget* control);

  std::vector<Named> named_;
};

/// Lets a frame of options, and one that has a name, be a group to a screen reader, where it would
/// be a mere border, and a label that is a mere colon be nothing to it.
void MakeCaptionsAccessible();

}  // namespace corvane
