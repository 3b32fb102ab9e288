#pragma once

#include <memory>

#include "account/TierTable.h"
#include "windows/frame/Form.h"

namespace Ui {
class TierTableWindow;
}

namespace corvane {

/// The tier table: number of tiers, the rate of each and the balance bounds between them. It
/// serves disclosures and periodic statements.
class TierTableWindow : public Form {
  Q_OBJECT

 public:
  explicit TierTableWindow(WindowRegistry& windows);
  ~TierTableWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

  /// Shows the rows of the chosen number of tiers.
  void Enable_Rates();

 private:
  void BindRow(int tier);
  void cboTotalTiers_Click();
  void txtInt_Emptied(int tier);
  void txt_bne_LostFocus(int tier);
  void cmdCalculate_Click();
  void cmdBack_Click();
  void cmdExit_Click();

  QLineEdit* Box(const char* array, int tier) const;
  void ShowMethod();
  void EmptyTable();
  TierTable ReadBoxes() const;
  void WriteBoxes(const TierTable& table);
  void OpenEntry();
  void OpenStatement(int tiers);
  void BackToStatementSetup();

  std::unique_ptr<Ui::TierTableWindow> ui_;
};

}  // namespace corvane
