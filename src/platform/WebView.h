#pragma once

#include <memory>

#include <QWidget>

#include "platform/PrintedPages.h"

class QLabel;

namespace corvane {

enum class PrintOutcome { Printed, Cancelled, Failed };

/// Shows one local report file and nothing else: scripts and plug-ins are off, nothing is stored,
/// links do nothing, and no other file or remote address is loaded. The browser behind it is made
/// for each file that is shown.
class WebView : public QWidget {
  Q_OBJECT

 public:
  explicit WebView(QWidget* parent);
  ~WebView() override;

  /// Shows the file. One that does not load, or whose browser loses its helper process, is loaded
  /// once more; then a notice says that it cannot be shown and where it stands.
  void ShowFile(const QString& path);

  /// Shows the file and those that follow at a percentage of their size; they print at their own.
  void SetZoom(int percent);

  /// Shows a plain sentence in place of a page.
  void ShowNotice(const QString& text);

  /// Prints the page after the system's print dialog, and keeps all input away until it is printed.
  /// It fails also when no page is shown.
  PrintOutcome Print(const PrintedLabels& labels);

 signals:
  /// The page stands on the screen, or could not be loaded.
  void Shown(bool success);

 private:
  struct Browser;

  void Load();
  void DropBrowser();
  void Loaded(bool success);
  void LoadAgain();

  QLabel* notice_;
  std::shared_ptr<Browser> browser_;
  QString path_;
  int zoom_ = 100;
  bool loadedAgain_ = false;
};

/// Prepares the process for the browser; to be called before the application object is made. The
/// browser's engine refuses to start for the superuser unless its sandbox is off.
void PrepareWebView();

}  // namespace corvane
