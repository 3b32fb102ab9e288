#pragma once

#include <memory>

#include "windows/frame/ReportWindow.h"

namespace Ui {
class DisclosureResultsWindow;
}

namespace corvane {

/// The disclosure results: the summary report of a check, to be read, printed and saved.
class DisclosureResultsWindow : public ReportWindow {
  Q_OBJECT

 public:
  explicit DisclosureResultsWindow(WindowRegistry& registry);
  ~DisclosureResultsWindow() override;

  void Form_Activate() override;

 private:
  ReportContent Content() override;

  std::unique_ptr<Ui::DisclosureResultsWindow> ui_;
};

}  // namespace corvane
