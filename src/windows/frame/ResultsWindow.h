#pragma once

#include <filesystem>

#include "portfolio/AddToFile.h"
#include "windows/frame/ReportWindow.h"

namespace corvane {

/// What the windows share that show the results of a check: in their menu File, the check goes to
/// the end of a file, and leads back to the table of a file that it may have come from.
class ResultsWindow : public ReportWindow {
  Q_OBJECT

 protected:
  using ReportWindow::ReportWindow;

  /// Puts the items into the menu File, once the form has it.
  void AddFileItems();
  /// Adds the check to a file.
  virtual AddOutcome AddTo(const std::filesystem::path& file) = 0;

 private:
  QAction* AddItem(const char* name, const char* text, Handler handler);
  void AddToChosenFile();
};

}  // namespace corvane
