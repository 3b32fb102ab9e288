#pragma once

#include <memory>

#include "platform/Browser.h"

class QWebEngineSettings;

namespace corvane {

/// Switches off what no page of the program needs: scripts, plug-ins, storage, other addresses.
void SwitchOff(QWebEngineSettings& settings);

/// A pane of reports that can be made ahead.
class WarmReportPane : public ReportPane {
 public:
  /// Lets the engine start a helper process for the page.
  virtual void Warm() = 0;
  /// Whether that was done.
  virtual bool IsWarm() const = 0;
};

std::unique_ptr<WarmReportPane> MakeReportPage();
std::unique_ptr<TopicPane> MakeTopicPage(const TopicEvents& events);

/// Makes the address of topics known to the engine, which has to be told before it starts.
void RegisterTopicAddress();

}  // namespace corvane
