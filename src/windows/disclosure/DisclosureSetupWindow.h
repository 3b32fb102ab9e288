#pragma once

#include <memory>

#include "disclosure/DisclosureSetup.h"
#include "windows/frame/Form.h"

namespace Ui {
class DisclosureSetupWindow;
}

namespace corvane {

/// The disclosure setup: who is examined and how the account earns interest.
class DisclosureSetupWindow : public Form {
  Q_OBJECT

 public:
  explicit DisclosureSetupWindow(WindowRegistry& windows);
  ~DisclosureSetupWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

  /// Puts the stored institution, description and holder into their fields.
  void ShowAccountHeader();
  /// The options that the main menu starts the workflow with.
  void SelectStartOptions();
  /// Sets all tier rates and bounds of the record to 0.
  void Clear_Tier_Data();

 private:
  void optICNone_Click();
  void optICDays_Click();
  void optICMonths_Click();
  void optICYears_Click();
  void optDY365_Click();
  void optDY366_Click();
  void AccountType_Click(std::int16_t code);
  void AccountHeader_LostFocus();
  void cmdNext_Click();
  void cmdNewAcct_Click();
  void cmdExit_Click();

  void ResetLayout();
  void FullLayout();
  void NoneYearsLayout();
  void ShowInterval(const char* label, const char* note);
  void SelectYearOf365();
  void RestoreSelections();
  void ShowNextWindow();
  void Restore_Period_Data();
  AccountSetup ReadChoices() const;

  std::unique_ptr<Ui::DisclosureSetupWindow> ui_;
};

}  // namespace corvane
