#pragma once

#include <memory>

#include "reports/ReportViewer.h"
#include "shell/Form.h"

namespace Ui {
class frmInterestReport;
}

namespace corvane {

/// The interest report: balance and rate of every day of the statement period, shown above the
/// window that asked for it.
class frmInterestReport : public Form {
  Q_OBJECT

 public:
  explicit frmInterestReport(WindowRegistry& windows);
  ~frmInterestReport() override;

  void Form_Load() override;
  void Form_Activate() override;

  /// Builds the report from the days in the session record and shows it.
  void Create_Web_Report();

 private:
  void cmdExit_Click();

  std::unique_ptr<Ui::frmInterestReport> ui_;
  WebView* webView_;
  std::unique_ptr<ReportViewer> viewer_;
};

}  // namespace corvane
