#include "platform/HelpView.h"

#include <utility>

#include <QBuffer>
#include <QGuiApplication>
#include <QPalette>
#include <QVBoxLayout>
#include <QWebEngineHistory>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>
#include <QWebEngineUrlSchemeHandler>
#include <QWebEngineView>

#include "platform/HelpBook.h"

namespace corvane {

namespace {

/// Topics have addresses such as "corvane-help://book/main-menu.htm", against which the browser
/// resolves the links and pictures of a page.
constexpr const char* kScheme = "corvane-help";

QUrl UrlOf(const QString& topic) {
  return QUrl(QString("%1://book/%2").arg(kScheme, topic));
}

QString TopicOf(const QUrl& url) {
  return url.path().mid(1);
}

QByteArray TypeOf(const QString& name) {
  if (name.endsWith(".png")) return "image/png";
  return name.endsWith(".css") ? "text/css" : "text/html";
}

/// The colours behind text as the desktop has them.
QColor Paper() {
  return QGuiApplication::palette().color(QPalette::Base);
}

/// The style sheet has its dark colours under a condition, but the browser does not know that the
/// desktop is dark.
QByteArray InTheColoursOfTheDesktop(QByteArray css) {
  if (Paper().lightness() > 127) return css;
  return css.replace("(prefers-color-scheme: dark)", "all")
      .replace("color-scheme: light dark", "color-scheme: dark");
}

class OnlyTheBook : public QWebEngineUrlRequestInterceptor {
 public:
  void interceptRequest(QWebEngineUrlRequestInfo& request) override {
    request.block(request.requestUrl().scheme() != kScheme);
  }
};

class BookHandler : public QWebEngineUrlSchemeHandler {
 public:
  explicit BookHandler(const HelpBook& book) : book_(book) {}

  void requestStarted(QWebEngineUrlRequestJob* job) override {
    const QString name = TopicOf(job->requestUrl());
    const QByteArray* bytes = book_.File(name);
    if (!bytes) return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    const QByteArray type = TypeOf(name);
    auto* answer = new QBuffer(job);
    answer->setData(type == "text/css" ? InTheColoursOfTheDesktop(*bytes) : *bytes);
    job->reply(type, answer);
  }

 private:
  const HelpBook& book_;
};

class TopicPage : public QWebEnginePage {
 public:
  TopicPage(QWebEngineProfile& profile, const HelpBook& book)
      : QWebEnginePage(&profile), book_(book) {}

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType, bool) override {
    return url.scheme() == kScheme && book_.File(TopicOf(url));
  }

 private:
  const HelpBook& book_;
};

void SwitchOff(QWebEngineSettings& settings) {
  for (const auto feature :
       {QWebEngineSettings::JavascriptEnabled, QWebEngineSettings::PluginsEnabled,
        QWebEngineSettings::LocalStorageEnabled, QWebEngineSettings::AutoLoadIconsForPage,
        QWebEngineSettings::HyperlinkAuditingEnabled, QWebEngineSettings::PdfViewerEnabled}) {
    settings.setAttribute(feature, false);
  }
}

}  // namespace

// Destroyed in the opposite order: a page must not outlive its profile.
struct HelpView::Browser {
  explicit Browser(const HelpBook& book) : handler(book), page(profile, book) {
    profile.setUrlRequestInterceptor(&guard);
    profile.installUrlSchemeHandler(kScheme, &handler);
    SwitchOff(*page.settings());
    page.setBackgroundColor(Paper());
    view.setPage(&page);
    view.setContextMenuPolicy(Qt::NoContextMenu);
  }

  OnlyTheBook guard;
  BookHandler handler;
  QWebEngineProfile profile;
  TopicPage page;
  QWebEngineView view;
};

HelpView::HelpView(QWidget* parent) : QWidget(parent) {
  auto* frame = new QVBoxLayout(this);
  frame->setContentsMargins(0, 0, 0, 0);
}

HelpView::~HelpView() = default;

void HelpView::Read(const HelpBook& book) {
  browser_ = std::make_unique<Browser>(book);
  layout()->addWidget(&browser_->view);
  setFocusProxy(&browser_->view);
  connect(&browser_->page, &QWebEnginePage::loadFinished, this, &HelpView::Loaded);
  connect(&browser_->page, &QWebEnginePage::renderProcessTerminated, this, &HelpView::LoadAgain,
          Qt::QueuedConnection);
}

void HelpView::ShowTopic(const QString& topic, const QString& marked) {
  marked_ = marked;
  loadedAgain_ = false;
  const bool isThere = browser_->page.renderProcessPid() != 0;
  if (isThere && browser_->page.url() == UrlOf(topic)) return Loaded();
  browser_->page.load(UrlOf(topic));
}

void HelpView::LoadAgain() {
  if (!std::exchange(loadedAgain_, true)) browser_->page.triggerAction(QWebEnginePage::Reload);
}

void HelpView::Loaded() {
  browser_->page.findText(marked_);
  emit Shown(TopicOf(browser_->page.url()));
}

void HelpView::GoBack() {
  browser_->page.history()->back();
}

void HelpView::GoForward() {
  browser_->page.history()->forward();
}

bool HelpView::CanGoBack() const {
  return browser_->page.history()->canGoBack();
}

bool HelpView::CanGoForward() const {
  return browser_->page.history()->canGoForward();
}

void PrepareHelpView() {
  QWebEngineUrlScheme scheme(kScheme);
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
  QWebEngineUrlScheme::registerScheme(scheme);
}

}  // namespace corvane
