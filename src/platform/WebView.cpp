#include "platform/WebView.h"

#include <QEventLoop>
#include <QLabel>
#include <QPrintDialog>
#include <QPrinter>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace corvane {

namespace {

/// Lets the report file through and blocks every other request, also those of the page itself.
class OnlyThisFile : public QWebEngineUrlRequestInterceptor {
 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

  void Allow(const QUrl& url) { allowed_ = url; }
  bool Allows(const QUrl& url) const { return url.matches(allowed_, QUrl::RemoveFragment); }

  void interceptRequest(QWebEngineUrlRequestInfo& request) override {
    request.block(!Allows(request.requestUrl()));
  }

 private:
  QUrl allowed_;
};

class ReportPage : public QWebEnginePage {
 public:
  ReportPage(QWebEngineProfile* profile, OnlyThisFile* guard)
      : QWebEnginePage(profile, nullptr), guard_(guard) {}

  void Open(const QUrl& url) {
    guard_->Allow(url);
    load(url);
  }

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool) override {
    return type != NavigationTypeLinkClicked && guard_->Allows(url);
  }

 private:
  OnlyThisFile* guard_;
};

void SwitchOff(QWebEngineSettings& settings) {
  for (const auto feature :
       {QWebEngineSettings::JavascriptEnabled, QWebEngineSettings::PluginsEnabled,
        QWebEngineSettings::LocalStorageEnabled, QWebEngineSettings::AutoLoadIconsForPage,
        QWebEngineSettings::LocalContentCanAccessRemoteUrls,
        QWebEngineSettings::LocalContentCanAccessFileUrls,
        QWebEngineSettings::HyperlinkAuditingEnabled, QWebEngineSettings::PdfViewerEnabled}) {
    settings.setAttribute(feature, false);
  }
}

}  // namespace

WebView::WebView(QWidget* parent) : QWidget(parent) {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
}

WebView::~WebView() = default;

void WebView::MakeBrowser() {
  profile_ = std::make_unique<QWebEngineProfile>();
  auto* guard = new OnlyThisFile(profile_.get());
  profile_->setUrlRequestInterceptor(guard);
  page_ = std::make_unique<ReportPage>(profile_.get(), guard);
  SwitchOff(*page_->settings());
  browser_ = std::make_unique<QWebEngineView>();
  browser_->setPage(page_.get());
  browser_->setContextMenuPolicy(Qt::NoContextMenu);
  layout()->addWidget(browser_.get());
  connect(page_.get(), &QWebEnginePage::loadFinished, this, &WebView::Shown);
}

void WebView::ShowFile(const QString& path) {
  if (!browser_) MakeBrowser();
  static_cast<ReportPage*>(page_.get())->Open(QUrl::fromLocalFile(path));
}

void WebView::ShowNotice(const QString& text) {
  auto* notice = new QLabel(text, this);
  notice->setAlignment(Qt::AlignCenter);
  layout()->addWidget(notice);
}

void WebView::Print() {
  if (!browser_) return;
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, window());
  if (dialog.exec() != QDialog::Accepted) return;
  // The printer has to live until the page is on it.
  QEventLoop printing;
  if (printer.outputFormat() == QPrinter::PdfFormat) {
    // A file gets text that can be searched, where the printer would get a picture of the page.
    connect(page_.get(), &QWebEnginePage::pdfPrintingFinished, &printing, &QEventLoop::quit);
    page_->printToPdf(printer.outputFileName(), printer.pageLayout());
  } else {
    connect(browser_.get(), &QWebEngineView::printFinished, &printing, &QEventLoop::quit);
    browser_->print(&printer);
  }
  printing.exec();
}

void PrepareWebView() {
#ifdef Q_OS_UNIX
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
#endif
}

}  // namespace corvane
