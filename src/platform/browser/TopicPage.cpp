#include <utility>

#include <QBuffer>
#include <QGuiApplication>
#include <QPalette>
#include <QWebEngineHistory>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineUrlRequestJob>
#include <QWebEngineUrlScheme>
#include <QWebEngineUrlSchemeHandler>
#include <QWebEngineView>

#include "platform/browser/Pages.h"

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
  explicit BookHandler(const TopicEvents& events) : events_(events) {}

  void requestStarted(QWebEngineUrlRequestJob* job) override {
    const QString name = TopicOf(job->requestUrl());
    const QByteArray* bytes = events_.file(name);
    if (!bytes) return job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    const QByteArray type = TypeOf(name);
    auto* answer = new QBuffer(job);
    answer->setData(type == "text/css" ? InTheColoursOfTheDesktop(*bytes) : *bytes);
    job->reply(type, answer);
  }

 private:
  const TopicEvents& events_;
};

class TopicPage : public QWebEnginePage {
 public:
  TopicPage(QWebEngineProfile& profile, const TopicEvents& events)
      : QWebEnginePage(&profile), events_(events) {}

 protected:
  bool acceptNavigationRequest(const QUrl& url, NavigationType, bool) override {
    return url.scheme() == kScheme && events_.file(TopicOf(url));
  }

 private:
  const TopicEvents& events_;
};

/// Its parts are destroyed in the opposite order: a page must not outlive its profile.
class EngineTopicPane : public TopicPane {
 public:
  explicit EngineTopicPane(const TopicEvents& events) : events_(events) {
    profile_.setUrlRequestInterceptor(&guard_);
    profile_.installUrlSchemeHandler(kScheme, &handler_);
    SwitchOff(*page_.settings());
    page_.setBackgroundColor(Paper());
    view_.setPage(&page_);
    view_.setContextMenuPolicy(Qt::NoContextMenu);
    QObject::connect(&page_, &QWebEnginePage::loadFinished, &page_, [this] { Loaded(); });
    // From place to place in a topic nothing is loaded.
    QObject::connect(&page_, &QWebEnginePage::urlChanged, &page_,
                     [this](const QUrl& url) { events_.shown(TopicOf(url)); });
    QObject::connect(
        &page_, &QWebEnginePage::renderProcessTerminated, &page_, [this] { events_.lost(); },
        Qt::QueuedConnection);
  }

  QWidget& View() override { return view_; }

  void Open(const QString& topic, const QString& marked) override {
    marked_ = marked;
    const bool isThere = page_.renderProcessPid() != 0;
    if (isThere && page_.url() == UrlOf(topic)) return Loaded();
    page_.load(UrlOf(topic));
  }

  void Reload() override { page_.triggerAction(QWebEnginePage::Reload); }
  void GoBack() override { page_.history()->back(); }
  void GoForward() override { page_.history()->forward(); }
  bool CanGoBack() const override { return page_.history()->canGoBack(); }
  bool CanGoForward() const override { return page_.history()->canGoForward(); }

 private:
  void Loaded() {
    // Once: finding also goes to what is found, where a link may lead to another place.
    page_.findText(std::exchange(marked_, {}));
    events_.shown(TopicOf(page_.url()));
  }

  const TopicEvents events_;
  QString marked_;
  OnlyTheBook guard_;
  BookHandler handler_{events_};
  QWebEngineProfile profile_;
  TopicPage page_{profile_, events_};
  QWebEngineView view_;
};

}  // namespace

std::unique_ptr<TopicPane> MakeTopicPage(const TopicEvents& events) {
  return std::make_unique<EngineTopicPane>(events);
}

void RegisterTopicAddress() {
  QWebEngineUrlScheme scheme(kScheme);
  scheme.setSyntax(QWebEngineUrlScheme::Syntax::Host);
  QWebEngineUrlScheme::registerScheme(scheme);
}

}  // namespace corvane
