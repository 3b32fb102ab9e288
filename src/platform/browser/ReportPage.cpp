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

#include "platform/browser/Pages.h"
#include "platform/browser/PrintedPages.h"
#include "support/ProgramTitle.h"

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

  /// Whether what has finished is no load: the engine tells of a link that was refused as of a page
  /// that failed.
  bool WasRefused() { return std::exchange(isRefused_, false); }

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override {
    const bool accepts = type != NavigationTypeLinkClicked && guard_->Allows(url);
    isRefused_ = isMainFrame && !accepts;
    return accepts;
  }

 private:
  OnlyThisFile* guard_;
  bool isRefused_ = false;
};

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

  /// Ends the wait; without a reason the page is printed.
  void Finish(const QString& reason) {
    reason_ = reason;
    done(reason.isEmpty() ? Accepted : Rejected);
  }
  PrintResult Result() const {
    return {result() == Accepted ? PrintOutcome::Printed : PrintOutcome::Failed, reason_};
  }

 private:
  QString reason_ = "The program ends";
};

/// Asks where and how to print.
bool Accepts(QPrinter& printer, QWidget* parent) {
  return QPrintDialog(&printer, parent).exec() == QDialog::Accepted;
}

/// Its parts are destroyed in the opposite order: a page must not outlive its profile, nor a
/// profile its guard.
class EngineReportPane : public WarmReportPane {
 public:
  EngineReportPane() {
    profile_.setUrlRequestInterceptor(&guard_);
    SwitchOff(*page_.settings());
    QObject::connect(&page_, &QWebEnginePage::loadFinished, [this](bool success) {
      if (!page_.WasRefused()) Loaded(success);
    });
    QObject::connect(&page_, &QWebEnginePage::renderProcessTerminated, [this] { Loaded(false); });
  }

  void Warm() override { page_.Open(QUrl("about:blank")); }
  bool IsWarm() const override { return isWarm_; }

  QWidget& View() override;
  void SetZoom(int percent) override { page_.setZoomFactor(percent / 100.0); }
  PrintResult Print(const PrintedLabels& labels, QWidget* parent) override;

  void Open(const QString& path, std::function<void(bool)> loaded) override {
    loaded_ = std::move(loaded);
    page_.Open(QUrl::fromLocalFile(path));
  }

 private:
  void Loaded(bool success);
  void StartToPrint(QPrinter& printer, const PrintedLabels& labels, PrintingBox& box);

  bool isWarm_ = false;
  std::function<void(bool)> loaded_;
  OnlyThisFile guard_;
  QWebEngineProfile profile_;
  ReportPage page_{&profile_, &guard_};
  /// Made when the page is to be seen: a view could not wait until the application object ends.
  std::unique_ptr<QWebEngineView> view_;
};

QWidget& EngineReportPane::View() {
  if (!view_) {
    view_ = std::make_unique<QWebEngineView>();
    view_->setPage(&page_);
    view_->setContextMenuPolicy(Qt::NoContextMenu);
  }
  return *view_;
}

void EngineReportPane::Loaded(bool success) {
  isWarm_ = success;
  if (!loaded_) return;
  if (success) return loaded_(true);
  // One failure is told in more than one way, and the page is still inside the one that came first.
  QTimer::singleShot(0, &page_, [tell = std::exchange(loaded_, {})] { tell(false); });
}

/// Starts to print, which ends the wait in the box. An engine whose helper is gone ends it too.
void EngineReportPane::StartToPrint(QPrinter& printer, const PrintedLabels& labels,
                                    PrintingBox& box) {
  constexpr const char* kLost = "The browser has lost its helper process";
  if (page_.renderProcessPid() == 0) return box.Finish(kLost);
  QObject::connect(&page_, &QWebEnginePage::renderProcessTerminated, &box,
                   [&box] { box.Finish(kLost); });
  // Without the box the printer is gone too.
  const auto deliver = [&printer, labels,
                        waiting = QPointer<PrintingBox>(&box)](const QByteArray& pdf) {
    if (!waiting) return;
    const QByteArray pages = WithLabels(pdf, printer.pageLayout(), labels);
    waiting->Finish(pages.isEmpty() ? "The browser made no pages of it"
                                    : PrintPages(pages, printer));
  };
  page_.printToPdf(deliver, printer.pageLayout());
}

PrintResult EngineReportPane::Print(const PrintedLabels& labels, QWidget* parent) {
  QPrinter printer(QPrinter::HighResolution);
  PreparePages(printer);
  printer.setDocName(labels.title);
  if (!Accepts(printer, parent)) return {PrintOutcome::Cancelled};
  PrintingBox box(parent);
  QTimer::singleShot(0, &box, [&] { StartToPrint(printer, labels, box); });
  box.exec();
  return box.Result();
}

}  // namespace

std::unique_ptr<WarmReportPane> MakeReportPage() {
  return std::make_unique<EngineReportPane>();
}

}  // namespace corvane
