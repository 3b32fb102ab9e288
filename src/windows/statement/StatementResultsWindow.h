#pragma once

#include <memory>

#include "windows/frame/ResultsWindow.h"

namespace Ui {
class StatementResultsWindow;
}

namespace corvane {

/// The statement results: the summary report of a check, and the way to its days.
class StatementResultsWindow : public ResultsWindow {
  Q_OBJECT

 public:
  explicit StatementResultsWindow(WindowRegistry& registry);
  ~StatementResultsWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

 private:
  ReportContent Content() override;
  AddOutcome AddTo(const std::filesystem::path& file) override;
  void cmdDetail_Click();

  std::unique_ptr<Ui::StatementResultsWindow> ui_;
};

}  // namespace corvane
