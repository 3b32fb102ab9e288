#include "windows/frame/Captions.h"

#include <QtWidgets>

namespace corvane {

namespace {

QString TextOf(const QWidget& control) {
  const QVariant text = control.property("text");
  return text.isValid() ? text.toString() : control.property("title").toString();
}

QAccessibleInterface* MakeGroup(const QString& className, QObject* object) {
  auto* frame = qobject_cast<QFrame*>(object);
  const bool isGroup = className == "QFrame" && frame &&
                       frame->findChild<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
  return isGroup ? new QAccessibleWidget(frame, QAccessible::Grouping) : nullptr;
}

}  // namespace

QString CaptionText(QString caption) {
  static const QRegularExpression accessKey("&(.)");
  static const QRegularExpression end("[ :]+$");
  return caption.replace(accessKey, "\\1").simplified().remove(end);
}

Captions::Captions(const QWidget& window) {
  for (auto* label : window.findChildren<QLabel*>()) {
    Add(label, label);
    if (label->buddy()) Add(label, label->buddy());
  }
  for (auto* button : window.findChildren<QAbstractButton*>()) Add(button, button);
  for (auto* group : window.findChildren<QGroupBox*>()) Add(group, group);
}

void Captions::Add(const QWidget* caption, QWidget* control) {
  if (control->accessibleName().isEmpty()) named_.push_back({caption, control, {}});
}

void Captions::Name() {
  for (Named& named : named_) {
    // The window has given it another name meanwhile.
    if (named.control->accessibleName() != named.name) continue;
    named.name = CaptionText(TextOf(*named.caption));
    named.control->setAccessibleName(named.name);
  }
}

void MakeOptionGroupsAccessible() {
  QAccessible::installFactory(MakeGroup);
}

}  // namespace corvane
