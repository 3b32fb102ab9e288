#pragma once

#include <memory>

#include "windows/frame/Form.h"

class QFrame;

namespace Ui {
class MainMenu;
}

namespace corvane {

/// The main menu, from which the two workflows start.
class MainMenu : public Form {
  Q_OBJECT

 public:
  explicit MainMenu(WindowRegistry& windows);
  ~MainMenu() override;

  void Form_Load() override;
  bool PlacesItself() const override { return true; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void cmdAcctAdv_Click();
  void cmdStatement_Click();
  void cmdExit_Click();
  void mnuShowTitle_Click();
  void Form_KeyDown(int key);

  QFrame* shape1_ = nullptr;

  std::unique_ptr<Ui::MainMenu> ui_;
};

}  // namespace corvane
