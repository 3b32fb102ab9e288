#pragma once

#include <functional>
#include <memory>

#include "statement/BalanceBasis.h"
#include "windows/frame/Form.h"

namespace Ui {
class StatementEntryWindow;
}

namespace corvane {

template <class Entry>
class FieldBinding;
struct CheckOutcome;

/// The statement period: dates or days, rate, minimums, balances and the interest that the
/// statement shows.
class StatementEntryWindow : public Form {
  Q_OBJECT

 public:
  explicit StatementEntryWindow(WindowRegistry& windows);
  ~StatementEntryWindow() override;

  void Form_Activate() override;

  /// What the fields and options hold.
  StatementEntry ReadFields() const;

 private:
  void BindFields();
  void BindOptions();
  void BindButtons();
  void InitStatementEntry();
  void ImgCalendar_Click();
  void Days_LostFocus(const QString& next);
  void txtDRFactor_Change();
  void Compute_Click(BalanceColumn column);
  void cmdCalculate_Click();
  void cmdBack_Click();
  void cmdNewAcct_Click();
  void cmdExit_Click();

  void Change(const std::function<void(StatementEntry&)>& change);
  void WriteFields(const StatementEntry& entry);
  void RefreshFieldColors(const StatementEntry& entry);
  bool PickDate(QLineEdit* field);
  bool Passes(const CheckOutcome& outcome);

  std::unique_ptr<Ui::StatementEntryWindow> ui_;
  std::unique_ptr<FieldBinding<StatementEntry>> fields_;
  bool justMade_ = true;
};

}  // namespace corvane
