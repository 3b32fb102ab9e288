#pragma once

#include <memory>

#include "windows/frame/Form.h"

namespace Ui {
class AboutWindow;
}

namespace corvane {

/// Version, support contact and program folder.
class AboutWindow : public Form {
  Q_OBJECT

 public:
  explicit AboutWindow(WindowRegistry& registry);
  ~AboutWindow() override;

  void Form_Load() override;

 private:
  void cmdSysInfo_Click();

  std::unique_ptr<Ui::AboutWindow> ui_;
};

}  // namespace corvane
