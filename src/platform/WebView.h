#pragma once

#include <memory>

#include <QWidget>

#include "platform/Browser.h"

class QLabel;

namespace corvane {

/// Shows one local report file and nothing else: scripts and plug-ins are off, nothing is stored,
/// links do nothing, and no other file or remote address is loaded. Each file that is shown gets a
/// pane of its own.
class WebView : public QWidget {
  Q_OBJECT

 public:
  explicit WebView(QWidget* parent);
  ~WebView() override;

  /// Shows the file. One that does not load, or whose browser loses its helper process, is loaded
  /// once more; then a notice says that it cannot be shown and where it stands. So does a notice
  /// where the browser is missing.
  void ShowFile(const QString& path);

  /// Shows the file and those that follow at a percentage of their size; they print at their own.
  void SetZoom(int percent);

  /// Shows a plain sentence in place of a page.
  void ShowNotice(const QString& text);

  /// Prints the page after the system's print dialog, and keeps all input away until it is printed.
  /// It fails also when no page is shown.
  PrintResult Print(const PrintedLabels& labels);

 signals:
  /// The page stands on the screen, or could not be loaded.
  void Shown(bool success);

 private:
  void Load();
  void LoadIn(Browser* browser, const QString& reason);
  void DropPane();
  void Loaded(bool success);
  void GiveUp(const QString& reason);

  QLabel* notice_;
  std::unique_ptr<QObject> waiting_;  ///< for the browser; without it what comes is out of date
  std::shared_ptr<ReportPane> pane_;
  QString path_;
  int zoom_ = 100;
  bool loadedAgain_ = false;
};

}  // namespace corvane
