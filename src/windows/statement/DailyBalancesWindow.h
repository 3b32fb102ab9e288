#pragma once

#include <array>
#include <memory>

#include "statement/DailyBalances.h"
#include "windows/frame/Form.h"

class QLabel;

namespace Ui {
class DailyBalancesWindow;
}

namespace corvane {

class ContextLine;

/// The daily balances: one balance (and for stepped accounts one rate) for every day of the
/// statement period, 33 days to a page.
class DailyBalancesWindow : public Form {
  Q_OBJECT

 public:
  explicit DailyBalancesWindow(WindowRegistry& registry);
  ~DailyBalancesWindow() override;

  void Form_Load() override;
  bool Form_QueryUnload() override;

  /// Shows the days, which keep what is entered; `computed` gets what Compute ADB found of them.
  /// Both have to live until the window has closed.
  void Edit(DailyBalances& daily, std::optional<ComputedDays>& computed);

 private:
  struct Row {
    QLabel* label;
    QLineEdit* balance;
    QLineEdit* rate;
  };

  void BuildRows();
  Row MakeRow(int index);
  void BindRow(std::size_t index);
  void txtDayBal_LostFocus(std::size_t row);
  void txtRate_LostFocus(std::size_t row);
  void cmdContinue_Click();
  void cmdClear_Click();
  void cmdPrint_Click();

  void LeaveForPage(int page);
  void GoToPage(int page);
  void ShowPage();
  void ShowRow(std::size_t row, std::size_t day);
  /// Takes what stands on the page, or tells why it cannot be left.
  bool TakePage();
  bool AcceptsEmptyDays();
  void TakeRow(std::size_t row, std::size_t day);
  DaySpan ShownDays() const { return DaysOnPage(page_, daily_->days.size()); }

  std::unique_ptr<Ui::DailyBalancesWindow> ui_;
  ContextLine* account_ = nullptr;
  std::array<Row, kDaysPerPage> rows_{};
  DailyBalances* daily_ = nullptr;
  std::optional<ComputedDays>* computed_ = nullptr;
  int page_ = 1;
};

}  // namespace corvane
