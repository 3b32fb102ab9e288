#include "windows/frame/Captions.h"

#include <QtWidgets>

namespace corvane {

namespace {

QString TextOf(const QWidget& control) {
  const QVariant text = control.property("text");
  return text.isValid() ? text.toString() : control.property("title").toString();
}

/// A sign for the eyes alone, such as a colon that stands in a column of its own.
class SilentSign : public QAccessibleWidget {
 public:
  explicit SilentSign(QLabel* label) : QAccessibleWidget(label, QAccessible::Separator) {}

  QString text(QAccessible::Text) const override { return {}; }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.invisible = true;
    return state;
  }
};

QAccessibleInterface* MakeInterface(const QString& className, QObject* object) {
  auto* label = qobject_cast<QLabel*>(object);
  if (label && label->text() == ":") return new SilentSign(label);
  auto* frame = qobject_cast<QFrame*>(object);
  if (className != "QFrame" || !frame) return nullptr;
  const bool isGroup = !frame->accessibleName().isEmpty() ||
                       frame->findChild<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
  return isGroup ? new QAccessibleWidget(frame, QAccessible::Grouping) : nullptr;
}

}  // namespace

QString CaptionText(QString caption) {
  static const QRegularExpression accessKey("&(\\S)");
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
  Name();
}

void Captions::Add(const QWidget* caption, QWidget* control) {
  if (!control->accessibleName().isEmpty()) return;
  named_.push_back({caption, control, {}});
  caption->parentWidget()->installEventFilter(this);
}

bool Captions::eventFilter(QObject*, QEvent* event) {
  // A changed text asks for another layout of what stands beside it, which comes before any input.
  if (event->type() == QEvent::LayoutRequest) Name();
  return false;
}

void Captions::Name() {
  for (Named& named : named_) {
    // The window has given it another name meanwhile.
    if (named.control->accessibleName() != named.name) continue;
    named.name = CaptionText(TextOf(*named.caption));
    named.control->setAccessibleName(named.name);
  }
}

void MakeCaptionsAccessible() {
  QAccessible::installFactory(MakeInterface);
}

}  // namespace corvane
