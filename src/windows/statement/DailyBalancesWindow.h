#pragma once

#include <array>
#include <memory>

#include "statement/DailyBalances.h"
#include "statement/DailyPages.h"
#include "windows/frame/Form.h"

class QLabel;

namespace Ui {
class DailyBalancesWindow;
}

namespace corvane {

/// The daily balances: one balance (and for stepped accounts one rate) for every day of the
/// statement period, 33 days to a page.
class DailyBalancesWindow : public Form {
  Q_OBJECT

 public:
  explicit DailyBalancesWindow(WindowRegistry& windows);
  ~DailyBalancesWindow() override;

  void Form_Load() override;
  bool Form_QueryUnload() override;

  /// Shows the days of the column that LedgerBasis names and returns when the window has closed;
  /// ComputeFlag then tells that no average was handed back. `interestRate` is the regular
  /// account's, percent a year.
  void EnterDays(double interestRate);

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

  void GoToPage(int page);
  void ShowPage();
  void ShowRow(std::size_t row, std::size_t day);
  void TakePage();
  void TakeRow(std::size_t row, std::size_t day);

  std::unique_ptr<Ui::DailyBalancesWindow> ui_;
  std::array<Row, kDaysPerPage> rows_{};
  DailyBalances daily_;
  int page_ = 1;
};

}  // namespace corvane
