#pragma once

#include <memory>

#include "statement/StatementSetup.h"
#include "windows/frame/FieldBinding.h"
#include "windows/frame/Form.h"
#include "windows/frame/HeaderFields.h"

namespace Ui {
class StatementSetupWindow;
}

namespace corvane {

/// The statement setup: whose statement is examined and how the account earns interest.
class StatementSetupWindow : public Form {
  Q_OBJECT

 public:
  explicit StatementSetupWindow(WindowRegistry& registry);
  ~StatementSetupWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

 private:
  void BindFields();
  void ShowGroups();
  void cmdNext_Click();
  void cmdNewAcct_Click();

  std::unique_ptr<Ui::StatementSetupWindow> ui_;
  StatementSetup choices_;  ///< taken over by Continue
  std::unique_ptr<FieldBinding<StatementSetup>> binding_;
  std::unique_ptr<HeaderFields> header_;
};

}  // namespace corvane
