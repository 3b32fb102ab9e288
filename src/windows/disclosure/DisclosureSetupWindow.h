#pragma once

#include <memory>

#include "disclosure/DisclosureSetup.h"
#include "windows/frame/FieldBinding.h"
#include "windows/frame/Form.h"
#include "windows/frame/HeaderFields.h"

namespace Ui {
class DisclosureSetupWindow;
}

namespace corvane {

/// The disclosure setup: who is examined and how the account earns interest.
class DisclosureSetupWindow : public Form {
  Q_OBJECT

 public:
  explicit DisclosureSetupWindow(WindowRegistry& registry);
  ~DisclosureSetupWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

 private:
  void NameGroups();
  void ShowGroups();
  void cmdNext_Click();
  void cmdNewAcct_Click();

  std::unique_ptr<Ui::DisclosureSetupWindow> ui_;
  DisclosureSetup choices_;  ///< taken over by Continue
  std::unique_ptr<FieldBinding<DisclosureSetup>> binding_;
  std::unique_ptr<HeaderFields> header_;
};

}  // namespace corvane
