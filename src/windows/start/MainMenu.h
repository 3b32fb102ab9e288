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
  explicit MainMenu(WindowRegistry& registry);
  ~MainMenu() override;

  void Form_Load() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  void mnuShowTitle_Click();

  QFrame* shape1_ = nullptr;
  std::unique_ptr<Ui::MainMenu> ui_;
};

}  // namespace corvane
