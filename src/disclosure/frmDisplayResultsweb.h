#pragma once

#include <memory>

#include "reports/ReportViewer.h"
#include "shell/Form.h"

namespace Ui {
class frmDisplayResultsweb;
}

namespace corvane {

/// The disclosure results: the summary report of a check, to be read, printed and saved.
class frmDisplayResultsweb : public Form {
  Q_OBJECT

 public:
  explicit frmDisplayResultsweb(WindowRegistry& windows);
  ~frmDisplayResultsweb() override;

  void Form_Activate() override;

 private:
  void cmdBack_Click();
  void cmdAcct_Click();
  void cmdExit_Click();
  void mnuMain_Click();
  void BuildReport();
  void ForgetAccount();

  std::unique_ptr<Ui::frmDisplayResultsweb> ui_;
  WebView* webView_;
  std::unique_ptr<ReportViewer> viewer_;
  bool built_ = false;
};

}  // namespace corvane
