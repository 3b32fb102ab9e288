#include "windows/WindowTest.h"
#include "windows/disclosure/DisclosureEntryWindow.h"

namespace corvane {
namespace {

/// What is pasted by keys is told in walks.
class Paste : public WindowTest {
 protected:
  void ByMenu(QLineEdit* field, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(field, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (QAction* item : menu->actions()) {
      if (item->text().contains("Paste")) item->trigger();
    }
    menu->close();
  }

  void ByDrop(QLineEdit* field, const QString& text) {
    QMimeData data;
    data.setText(text);
    QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(field, &enter);
    QDropEvent event({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
    QCoreApplication::sendEvent(field, &event);
  }
};

TEST_F(Paste, TheMenuAndADropTakeWhatTheKeysTake) {
  windows.Show<DisclosureEntryWindow>();
  InFront<DisclosureEntryWindow>();
  using Way = std::function<void(QLineEdit*, const QString&)>;
  const Way ways[] = {[this](auto* field, auto& text) { ByMenu(field, text); },
                      [this](auto* field, auto& text) { ByDrop(field, text); }};
  for (const Way& paste : ways) {
    for (const auto& [name, copied, kept] : {std::tuple{"txtBal", "$1,234.56\n", "1234.56"},
                                             {"txtBal", "1.234,56", ""},
                                             {"tStartDate", "1/5/2026", "01-05-2026"},
                                             {"tStartDate", "1/5", "__-__-____"}}) {
      auto* field = Get<QLineEdit>(name);
      field->clear();
      paste(field, copied);
      EXPECT_EQ(field->displayText().toStdString(), kept) << copied;
    }
  }
}

}  // namespace
}  // namespace corvane
