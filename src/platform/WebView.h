#pragma once

#include <memory>

#include <QWidget>

class QWebEnginePage;
class QWebEngineProfile;
class QWebEngineView;

namespace corvane {

/// Shows one local report file and nothing else: scripts and plug-ins are off, nothing is stored,
/// links do nothing, and no other file or remote address is loaded. The browser behind it is made
/// when the first file is shown.
class WebView : public QWidget {
  Q_OBJECT

 public:
  explicit WebView(QWidget* parent);
  ~WebView() override;

  void ShowFile(const QString& path);

  /// Shows a plain sentence in place of a page.
  void ShowNotice(const QString& text);

  /// Prints the page after the system's print dialog; does nothing when no page is shown.
  void Print();

 signals:
  /// The page stands on the screen, or could not be loaded.
  void Shown(bool success);

 private:
  void MakeBrowser();

  // Destroyed in the opposite order: a page must not outlive its profile.
  std::unique_ptr<QWebEngineProfile> profile_;
  std::unique_ptr<QWebEnginePage> page_;
  std::unique_ptr<QWebEngineView> browser_;
};

/// Prepares the process for the browser; to be called before the application object is made. The
/// browser's engine refuses to start for the superuser unless its sandbox is off.
void PrepareWebView();

}  // namespace corvane
