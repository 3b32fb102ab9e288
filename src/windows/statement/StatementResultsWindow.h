#pragma once

#include <memory>

#include "windows/frame/Form.h"
#include "windows/frame/ReportViewer.h"

namespace Ui {
class StatementResultsWindow;
}

namespace corvane {

/// The statement results: the summary report of a check, to be read, printed and saved.
class StatementResultsWindow : public Form {
  Q_OBJECT

 public:
  explicit StatementResultsWindow(WindowRegistry& windows);
  ~StatementResultsWindow() override;

  void Form_Load() override;
  void Form_Activate() override;

 private:
  void BuildReport();
  void cmdDetail_Click();
  void cmdBack_Click();
  void cmdAcct_Click();
  void cmdExit_Click();

  std::unique_ptr<Ui::StatementResultsWindow> ui_;
  WebView* webView_;
  std::unique_ptr<ReportViewer> viewer_;
  bool built_ = false;
};

}  // namespace corvane
