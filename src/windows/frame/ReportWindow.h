#pragma once

#include "platform/Browser.h"
#include "reports/ReportFile.h"
#include "windows/frame/Form.h"

namespace corvane {

class WebView;

/// What the report windows share: build the report file, show it, print it, save a copy. Print and
/// Save act on the report as it was built, and do nothing when none was.
class ReportWindow : public Form {
  Q_OBJECT

 protected:
  ReportWindow(WindowRegistry& windows, Role role, const ReportNames& names);

  /// Puts the view into its frame and wires Print and Save, once the form has its controls.
  void PlaceView(QWidget* frame, const QString& viewName);

  /// What the report is filled with.
  virtual ReportContent Content() = 0;
  /// Fills the template, tells of unknown tags and failures, and shows the file.
  void BuildReport();
  /// Lets the keys move in the report, where one was built.
  void FocusReport();

 private:
  std::filesystem::path OutputFile();
  WrittenReport Written();
  void BuildAndShow();
  /// A page is on the screen: it is built again where another program has put its own report under
  /// the same name before the browser read it.
  void CheckShown(bool success);
  void BindKeys();
  void AddViewMenu();
  void Zoom(int percent);
  void Print();
  void SaveCopy();
  bool MayReplace(const std::filesystem::path& chosen, const std::filesystem::path& path);

  ReportNames names_;
  WebView* view_ = nullptr;
  std::optional<std::string> text_;  ///< the report as it was built
  int timesBuilt_ = 0;
  PrintedLabels labels_;  ///< of the report when it is printed
};

}  // namespace corvane
