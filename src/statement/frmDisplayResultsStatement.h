#pragma once

#include <memory>

#include "reports/ReportViewer.h"
#include "shell/Form.h"

namespace Ui {
class frmDisplayResultsStatement;
}

namespace corvane {

/// The statement results: the summary report of a check, to be read, printed and saved.
class frmDisplayResultsStatement : public Form {
  Q_OBJECT

 public:
  explicit frmDisplayResultsStatement(WindowRegistry& windows);
  ~frmDisplayResultsStatement() override;

  void Form_Load() override;
  void Form_Activate() override;

 private:
  void BuildReport();
  void cmdDetail_Click();
  void cmdBack_Click();
  void cmdAcct_Click();
  void cmdExit_Click();

  std::unique_ptr<Ui::frmDisplayResultsStatement> ui_;
  WebView* webView_;
  std::unique_ptr<ReportViewer> viewer_;
  bool built_ = false;
};

}  // namespace corvane
