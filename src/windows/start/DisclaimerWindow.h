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
  explicit DisclaimerWindow(WindowRegistry& registry);
  ~DisclaimerWindow() override;

  void Form_Load() override;

 private:
  std::unique_ptr<Ui::DisclaimerWindow> ui_;
};

}  // namespace corvane
