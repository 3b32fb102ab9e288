#include "platform/MessageBox.h"

#include <QTimer>

namespace corvane {

namespace {

MessageBoxObserver& Observer() {
  static MessageBoxObserver observer;
  return observer;
}

int Run(QMessageBox& box) {
  box.setTextFormat(Qt::PlainText);
  if (Observer()) {
    QTimer::singleShot(0, &box, [&box] { Observer()(box); });
  }
  return box.exec();
}

}  // namespace

void ShowMessage(QWidget* parent, const QString& text, const QString& title,
                 QMessageBox::Icon icon) {
  QMessageBox box(icon, title, text, QMessageBox::Ok, parent);
  Run(box);
}

bool AskYesNo(QWidget* parent, const QString& text, const QString& title,
              QMessageBox::StandardButton byDefault) {
  QMessageBox box(QMessageBox::NoIcon, title, text, QMessageBox::Yes | QMessageBox::No, parent);
  box.setDefaultButton(byDefault);
  return Run(box) == QMessageBox::Yes;
}

void SetMessageBoxObserver(MessageBoxObserver observer) {
  Observer() = std::move(observer);
}

}  // namespace corvane
