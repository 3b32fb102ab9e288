#pragma once

#include <functional>
#include <memory>

#include <QByteArray>
#include <QString>

class QWidget;

namespace corvane {

/// What a printed report says beyond its page.
struct PrintedLabels {
  QString title;        ///< of the document
  QString institution;  ///< with date and page number at the foot of every page
  QString date;
};

enum class PrintOutcome { Printed, Cancelled, Failed };

/// What came of a print, and of one that failed, why.
struct PrintResult {
  PrintOutcome outcome;
  QString reason = {};
};

/// Shows one local report file and nothing else.
class ReportPane {
 public:
  virtual ~ReportPane() = default;

  virtual QWidget& View() = 0;
  /// Loads the file and tells whether it stands there; tells of a failure also later, when the
  /// engine loses the helper process of the page. Of failures only the first one is told.
  virtual void Open(const QString& path, std::function<void(bool success)> loaded) = 0;
  /// In percent of the size that the page gives itself.
  virtual void SetZoom(int percent) = 0;
  /// Prints the page after the system's print dialog, and keeps all input away until it is printed.
  virtual PrintResult Print(const PrintedLabels& labels, QWidget* parent) = 0;
};

/// Shows the topics of a help book and nothing else.
class TopicPane {
 public:
  virtual ~TopicPane() = default;

  virtual QWidget& View() = 0;
  /// Shows a topic and marks a text in it; an empty text marks nothing.
  virtual void Open(const QString& topic, const QString& marked) = 0;
  /// Loads the topic that was shown last once more.
  virtual void Reload() = 0;
  virtual void GoBack() = 0;
  virtual void GoForward() = 0;
  virtual bool CanGoBack() const = 0;
  virtual bool CanGoForward() const = 0;
};

/// What a pane of topics asks for and tells.
struct TopicEvents {
  /// A file of the book, or null.
  std::function<const QByteArray*(const QString& name)> file;
  /// Another topic is shown, whatever way led to it.
  std::function<void(const QString& topic)> shown;
  /// The engine has lost the helper process of the page.
  std::function<void()> lost;
};

/// The browser: what the module kBrowserModule gives to the program. It has to outlive its panes.
class Browser {
 public:
  virtual ~Browser() = default;

  /// Does the next step of what the first page would have to wait for: starts the engine, then its
  /// helper process. False when nothing is left to do.
  virtual bool Warm() = 0;
  virtual std::unique_ptr<ReportPane> MakeReportPane() = 0;
  virtual std::unique_ptr<TopicPane> MakeTopicPane(const TopicEvents& events) = 0;
};

/// The module's file in the program's folder, and the function in it that makes the browser.
inline constexpr const char* kBrowserModule = "corvane-browser.so";
inline constexpr const char* kMakeBrowser = "CorvaneMakeBrowser";
using MakeBrowser = Browser* (*)();

}  // namespace corvane
