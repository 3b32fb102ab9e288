#pragma once

#include <functional>

#include <QClipboard>
#include <QObject>

class QContextMenuEvent;
class QKeyEvent;
class QLineEdit;

namespace corvane {

/// Takes what comes into a field in any other way than typing: by a key, the context menu, the
/// middle button of the mouse, or dropped into it. The field itself would insert it unseen.
class PasteFilter : public QObject {
 public:
  /// Gets the text; the cursor of the field stands where it is meant to go.
  using Taker = std::function<void(const QString& text)>;

  PasteFilter(QLineEdit* field, Taker take);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakeKey(const QKeyEvent& press);
  bool TakeAt(const QPoint& place, const QString& text);
  void ShowMenu(const QContextMenuEvent& event);
  void TakeClipboard(QClipboard::Mode mode);

  QLineEdit* field_;
  Taker take_;
};

}  // namespace corvane
