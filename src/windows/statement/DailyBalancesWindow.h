#pragma once

#include <memory>

#include "statement/DailyBalances.h"
#include "windows/frame/Form.h"

namespace Ui {
class DailyBalancesWindow;
}

namespace corvane {

class ContextLine;
class DayGrid;

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

 protected:
  /// A copied table fills the days from the field's on.
  void PasteInto(QLineEdit* field, const QString& text) override;

 private:
  void BindFields();
  void BindCommands();
  void Field_LostFocus(const DayPlace& place);
  void cmdContinue_Click();
  void cmdPrint_Click();
  void mnuUndo_Click();
  void mnuLoad_Click();

  /// Goes on to a day's field of the same column; behind the last day to Compute ADB.
  void GoTo(const DayPlace& place);

  void Turn(int pages);
  void GoToPage(int page);
  void ShowPage(int page);
  void ShowSummary();
  /// Takes what stands on the page, or tells why it cannot be left.
  bool TakePage();
  bool AcceptsEmptyDays();
  /// Takes days over that were filled, or tells why they were not.
  void Fill(const std::variant<DailyBalances, Refusal>& days);

  std::unique_ptr<Ui::DailyBalancesWindow> ui_;
  ContextLine* account_ = nullptr;
  std::unique_ptr<DayGrid> grid_;
  std::optional<ComputedDays>* computed_ = nullptr;
};

}  // namespace corvane
