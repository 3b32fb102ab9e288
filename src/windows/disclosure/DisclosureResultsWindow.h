#pragma once

#include <memory>

#include "windows/frame/ResultsWindow.h"

namespace Ui {
class DisclosureResultsWindow;
}

namespace corvane {

/// The disclosure results: the summary report of a check, to be read, printed and saved.
class DisclosureResultsWindow : public ResultsWindow {
  Q_OBJECT

 public:
  explicit DisclosureResultsWindow(WindowRegistry& registry);
  ~DisclosureResultsWindow() override;

  void Form_Activate() override;

 private:
  ReportContent Content() override;
  AddOutcome AddTo(const std::filesystem::path& file) override;

  std::unique_ptr<Ui::DisclosureResultsWindow> ui_;
};

}  // namespace corvane
