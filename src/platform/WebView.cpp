#include "platform/WebView.h"

#include <utility>

#include <QDialog>
#include <QLabel>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QTimer>
#include <QVBoxLayout>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

#include "support/ProgramTitle.h"

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

/// Shows that a page prints. It takes the input of all windows and stays until the print ends.
class PrintingBox : public QDialog {
 public:
  explicit PrintingBox(QWidget* parent)
      : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint) {
    setWindowTitle(kProgramTitle);
    setObjectName("PrintingBox");
    (new QVBoxLayout(this))->addWidget(new QLabel("The report is being printed."));
  }

  void reject() override {}
};

/// Asks where and how to print.
bool Accepts(QPrinter& printer, QWidget* parent) {
  return QPrintDialog(&printer, parent).exec() == QDialog::Accepted;
}

}  // namespace

// Destroyed in the opposite order: a page must not outlive its profile, nor a profile its guard.
struct WebView::Browser {
  Browser() {
    profile.setUrlRequestInterceptor(&guard);
    SwitchOff(*page.settings());
    view.setPage(&page);
    view.setContextMenuPolicy(Qt::NoContextMenu);
  }

  /// Starts to print, which ends the wait in the box. An engine whose helper is gone ends it too.
  void Print(QPrinter& printer, const PrintedLabels& labels, QDialog& box) {
    if (page.renderProcessPid() == 0) return box.done(QDialog::Rejected);
    connect(&page, &QWebEnginePage::renderProcessTerminated, &box,
            [&box] { box.done(QDialog::Rejected); });
    // Without the box the printer is gone too.
    const auto deliver = [&printer, labels,
                          waiting = QPointer<QDialog>(&box)](const QByteArray& pdf) {
      if (!waiting) return;
      const QByteArray pages = WithLabels(pdf, printer.pageLayout(), labels);
      const bool success = !pages.isEmpty() && PrintPages(pages, printer);
      waiting->done(success ? QDialog::Accepted : QDialog::Rejected);
    };
    page.printToPdf(deliver, printer.pageLayout());
  }

  OnlyThisFile guard;
  QWebEngineProfile profile;
  ReportPage page{&profile, &guard};
  QWebEngineView view;
};

WebView::WebView(QWidget* parent) : QWidget(parent), notice_(new QLabel(this)) {
  auto* frame = new QVBoxLayout(this);
  frame->setContentsMargins(0, 0, 0, 0);
  notice_->setAlignment(Qt::AlignCenter);
  notice_->setTextFormat(Qt::PlainText);
  notice_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  notice_->setWordWrap(true);
  frame->addWidget(notice_);
}

WebView::~WebView() = default;

void WebView::ShowFile(const QString& path) {
  path_ = path;
  loadedAgain_ = false;
  Load();
}

void WebView::SetZoom(int percent) {
  zoom_ = percent;
  if (browser_) browser_->page.setZoomFactor(percent / 100.0);
}

void WebView::ShowNotice(const QString& text) {
  DropBrowser();
  notice_->setText(text);
  notice_->show();
}

void WebView::Load() {
  DropBrowser();
  notice_->hide();
  browser_ = std::make_shared<Browser>();
  layout()->addWidget(&browser_->view);
  setFocusProxy(&browser_->view);
  SetZoom(zoom_);
  connect(&browser_->page, &QWebEnginePage::loadFinished, this, &WebView::Loaded);
  connect(&browser_->page, &QWebEnginePage::renderProcessTerminated, this,
          [this] { Loaded(false); });
  browser_->page.Open(QUrl::fromLocalFile(path_));
}

void WebView::DropBrowser() {
  // It may live on until its print has ended.
  if (browser_) browser_->view.hide();
  browser_.reset();
}

void WebView::Loaded(bool success) {
  if (success) {
    SetZoom(zoom_);
    emit Shown(true);
    return;
  }
  // One failure is told in more than one way, and the page is still inside the one that came first.
  browser_->page.disconnect(this);
  QTimer::singleShot(0, &browser_->page, [this] { LoadAgain(); });
}

void WebView::LoadAgain() {
  if (!std::exchange(loadedAgain_, true)) return Load();
  ShowNotice("The report cannot be shown. It stands in " + path_);
  emit Shown(false);
}

PrintOutcome WebView::Print(const PrintedLabels& labels) {
  const auto printing = browser_;
  if (!printing) return PrintOutcome::Failed;
  QPrinter printer(QPrinter::HighResolution);
  PreparePages(printer);
  printer.setDocName(labels.title);
  if (!Accepts(printer, window())) return PrintOutcome::Cancelled;
  PrintingBox box(window());
  QTimer::singleShot(0, &box, [&] { printing->Print(printer, labels, box); });
  return box.exec() == QDialog::Accepted ? PrintOutcome::Printed : PrintOutcome::Failed;
}

void PrepareWebView() {
  // On Linux the engine tells screen readers what a page holds only where it is asked to.
  qputenv("QTWEBENGINE_ENABLE_LINUX_ACCESSIBILITY", "1");
#ifdef Q_OS_UNIX
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
#endif
}

}  // namespace corvane
