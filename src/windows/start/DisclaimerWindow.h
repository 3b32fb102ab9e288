#pragma once

#include <memory>

#include "windows/frame/Form.h"

namespace Ui {
class DisclaimerWindow;
}

namespace corvane {

/// The disclaimer that opens the program.
class DisclaimerWindow : public Form {
  Q_OBJECT

 public:
  explicit DisclaimerWindow(WindowRegistry& windows);
  ~DisclaimerWindow() override;

  void Form_Load() override;

 private:
  void cmdOK_Click();

  std::unique_ptr<Ui::DisclaimerWindow> ui_;
};

}  // namespace corvane
