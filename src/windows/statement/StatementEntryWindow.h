#pragma once

#include <memory>

#include "statement/StatementEntry.h"
#include "windows/frame/FieldBinding.h"
#include "windows/frame/Form.h"

namespace Ui {
class StatementEntryWindow;
}

namespace corvane {

class DateRange;

/// The statement period: dates or days, rate, minimums, balances and the interest that the
/// statement shows.
class StatementEntryWindow : public Form {
  Q_OBJECT

 public:
  explicit StatementEntryWindow(WindowRegistry& registry);
  ~StatementEntryWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

 private:
  StatementEntry& Entry();
  void BindFields();
  void BindButtons();
  void ShowGroups();
  void txtDRFactor_Change();
  void Days_LostFocus(const QString& next);
  void ImgCalendar_Click();
  void Compute_Click(BalanceColumn column);
  void cmdCalculate_Click();

  /// Asks for a date by the calendar; whether there is one then.
  bool AskDate(bool start, const Date& from);
  bool Passes(const CheckOutcome& outcome);

  std::unique_ptr<Ui::StatementEntryWindow> ui_;
  std::unique_ptr<FieldBinding<StatementEntry>> binding_;
  std::unique_ptr<DateRange> dates_;
};

}  // namespace corvane
