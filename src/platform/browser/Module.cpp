#include <utility>

#include <QCoreApplication>
#include <QWebEngineSettings>

#include "platform/browser/Pages.h"

namespace corvane {

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

namespace {

/// A pane of reports that waits for its report. The engine ends with the application object, before
/// the browser does; the pane has to end before the engine.
std::unique_ptr<WarmReportPane> spare;

class EngineBrowser : public Browser {
 public:
  EngineBrowser() { RegisterTopicAddress(); }

  bool Warm() override {
    if (!spare) {
      spare = MakeReportPage();
      // Called in the opposite order, so before what the engine has just added for its own end.
      if (!std::exchange(hasStarted_, true)) qAddPostRoutine([] { spare.reset(); });
      return true;
    }
    spare->Warm();
    return false;
  }

  std::unique_ptr<ReportPane> MakeReportPane() override {
    if (spare && spare->IsWarm()) return std::move(spare);
    return MakeReportPage();
  }

  std::unique_ptr<TopicPane> MakeTopicPane(const TopicEvents& events) override {
    return MakeTopicPage(events);
  }

 private:
  bool hasStarted_ = false;
};

}  // namespace

}  // namespace corvane

extern "C" Q_DECL_EXPORT corvane::Browser* CorvaneMakeBrowser() {
  return new corvane::EngineBrowser;
}
