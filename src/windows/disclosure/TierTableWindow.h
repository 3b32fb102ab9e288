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
  explicit TierTableWindow(WindowRegistry& registry);
  ~TierTableWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

 private:
  void BindRow(int tier);
  void ShowRows();
  void cboTotalTiers_Click();
  void txtInt_LostFocus(int tier, const QString& next);
  void txt_bne_LostFocus(int tier);
  void cmdCalculate_Click();

  QLineEdit* Box(const char* array, int tier) const;
  int ChosenCount() const;
  TierTable ReadBoxes() const;
  void WriteBoxes(const TierTable& table);

  std::unique_ptr<Ui::TierTableWindow> ui_;
  bool rateEdited_ = false;
};

}  // namespace corvane
