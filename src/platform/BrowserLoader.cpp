#include "platform/BrowserLoader.h"

#include <memory>
#include <thread>
#include <utility>
#include <vector>

#include <QApplication>
#include <QEvent>
#include <QLibrary>
#include <QOpenGLContext>
#include <QPointer>
#include <QTimer>

#include "platform/Browser.h"
#include "platform/ProgramFolder.h"
#include "support/Paths.h"

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

QT_BEGIN_NAMESPACE
// Of Qt's stable binary interface, though no header declares it.
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext* context);
QT_END_NAMESPACE

namespace corvane {

namespace {

/// So long a person has neither typed nor clicked before the engine starts a step: starting it
/// holds the windows for a moment, and nothing can divide that.
constexpr int kPauseMilliseconds = 300;

bool IsInput(QEvent::Type type) {
  return type == QEvent::KeyPress || type == QEvent::MouseButtonPress || type == QEvent::Wheel;
}

/// The one browser of the process. It ends with the application object, which its engine needs.
class BrowserLoader : public QObject {
 public:
  static BrowserLoader& Instance() {
    static std::unique_ptr<BrowserLoader> instance;
    if (!instance) {
      qAddPostRoutine([] { instance.reset(); });
      instance = std::make_unique<BrowserLoader>();
    }
    return *instance;
  }

  BrowserLoader();

  void Warm();
  void With(QObject* context, BrowserUse use);
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Waiting {
    QPointer<QObject> context;
    BrowserUse use;
  };

  void Load();
  void Loaded();
  void WarmStep();

  std::unique_ptr<QOpenGLContext> shared_;
  QLibrary module_;
  std::unique_ptr<Browser> browser_;
  QString reason_;
  bool isLoaded_ = false;
  std::vector<Waiting> waiting_;
  QTimer pause_;
  std::jthread thread_;
};

BrowserLoader::BrowserLoader()
    : module_(QString::fromStdString(PathText(ProgramFolder() / kBrowserModule))) {
  // The engine is not made to be unloaded.
  module_.setLoadHints(QLibrary::PreventUnloadHint);
  pause_.setSingleShot(true);
  connect(&pause_, &QTimer::timeout, this, &BrowserLoader::WarmStep);
  // What the attribute AA_ShareOpenGLContexts makes at every start, with or without a browser: on
  // an X display it costs more than all the rest of a first window.
  shared_ = std::make_unique<QOpenGLContext>();
  qt_gl_set_global_share_context(shared_.get());
  thread_ = std::jthread([this] { Load(); });
}

/// In the thread: the driver of the display and the libraries of the engine.
void BrowserLoader::Load() {
  if (QOpenGLContext::supportsThreadedOpenGL()) shared_->create();
  module_.load();
  QMetaObject::invokeMethod(this, &BrowserLoader::Loaded, Qt::QueuedConnection);
}

void BrowserLoader::Loaded() {
  if (!shared_->isValid()) shared_->create();
  const auto make = reinterpret_cast<MakeBrowser>(module_.resolve(kMakeBrowser));
  if (make) browser_.reset(make());
  reason_ = "The browser could not be loaded.\n" + module_.errorString();
  isLoaded_ = true;
  for (const Waiting& one : std::exchange(waiting_, {})) {
    if (one.context) one.use(browser_.get(), reason_);
  }
  Warm();
}

void BrowserLoader::Warm() {
  if (!browser_) return;
  qApp->installEventFilter(this);
  pause_.start(kPauseMilliseconds);
}

void BrowserLoader::WarmStep() {
  if (browser_->Warm()) return pause_.start(0);
  qApp->removeEventFilter(this);
}

bool BrowserLoader::eventFilter(QObject*, QEvent* event) {
  if (IsInput(event->type()) && pause_.isActive()) pause_.start(kPauseMilliseconds);
  return false;
}

void BrowserLoader::With(QObject* context, BrowserUse use) {
  if (isLoaded_) return use(browser_.get(), reason_);
  waiting_.push_back({context, std::move(use)});
}

}  // namespace

void PrepareBrowser() {
  // On Linux the engine tells screen readers what a page holds only where it is asked to.
  qputenv("QTWEBENGINE_ENABLE_LINUX_ACCESSIBILITY", "1");
#ifdef Q_OS_UNIX
  if (geteuid() == 0) qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
#endif
}

void WarmBrowser() {
  BrowserLoader::Instance().Warm();
}

void WithBrowser(QObject* context, BrowserUse use) {
  BrowserLoader::Instance().With(context, std::move(use));
}

}  // namespace corvane
