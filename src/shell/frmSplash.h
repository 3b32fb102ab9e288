#pragma once

#include <memory>

#include "shell/Form.h"

namespace Ui {
class frmSplash;
}

namespace corvane {

/// The disclaimer that opens the program.
class frmSplash : public Form {
  Q_OBJECT

 public:
  explicit frmSplash(WindowRegistry& windows);
  ~frmSplash() override;

  void Form_Load() override;

 private:
  void cmdOK_Click();

  std::unique_ptr<Ui::frmSplash> ui_;
};

}  // namespace corvane
