#pragma once

#include <memory>

#include "shell/Form.h"

namespace Ui {
class frmAbout;
}

namespace corvane {

/// Version, support contact and program folder.
class frmAbout : public Form {
  Q_OBJECT

 public:
  explicit frmAbout(WindowRegistry& windows);
  ~frmAbout() override;

  void Form_Load() override;

 private:
  void cmdSysInfo_Click();

  std::unique_ptr<Ui::frmAbout> ui_;
};

}  // namespace corvane
