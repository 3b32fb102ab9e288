#pragma once

#include <string>

#include "reports/ReportFile.h"
#include "reports/TemplateEngine.h"

class QString;

namespace corvane {

class Form;
class WebView;
struct SessionRecord;

/// What the report windows share: build the report file, show it, print it, save a copy. Print and
/// Save act on the report as it was built, and do nothing when none was.
class ReportViewer {
 public:
  ReportViewer(Form& window, WebView& view, const ReportNames& names);

  /// Fills the template, tells of unknown tags and failures, and shows the file.
  void BuildAndShow(const SessionRecord& session, const ReportContent& content);
  void Print();
  void SaveAs(const SessionRecord& session);

 private:
  bool MayReplace(const std::string& chosen, const std::string& path) const;

  Form& window_;
  WebView& view_;
  ReportNames names_;
  bool built_ = false;
  std::string text_;
};

}  // namespace corvane
