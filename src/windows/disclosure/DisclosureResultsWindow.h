#pragma once

#include <memory>

#include "windows/frame/Form.h"
#include "windows/frame/ReportViewer.h"

namespace Ui {
class DisclosureResultsWindow;
}

namespace corvane {

/// The disclosure results: the summary report of a check, to be read, printed and saved.
class DisclosureResultsWindow : public Form {
  Q_OBJECT

 public:
  explicit DisclosureResultsWindow(WindowRegistry& windows);
  ~DisclosureResultsWindow() override;

  void Form_Activate() override;

 private:
  void cmdBack_Click();
  void cmdAcct_Click();
  void cmdExit_Click();
  void mnuMain_Click();
  void BuildReport();
  void ForgetAccount();

  std::unique_ptr<Ui::DisclosureResultsWindow> ui_;
  WebView* webView_;
  std::unique_ptr<ReportViewer> viewer_;
  bool built_ = false;
};

}  // namespace corvane
