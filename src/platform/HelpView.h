#pragma once

#include <memory>

#include <QWidget>

class QLabel;

namespace corvane {

class Browser;
class HelpBook;
class TopicPane;

/// Shows the topics of a help book and nothing else: pages, pictures and style come from the book,
/// links lead from topic to topic, every other address is refused, scripts and plug-ins are off and
/// nothing is stored. A notice says where a topic cannot be shown.
class HelpView : public QWidget {
  Q_OBJECT

 public:
  explicit HelpView(QWidget* parent);
  ~HelpView() override;

  /// The book to show, which has to outlive the view.
  void Read(const HelpBook& book);

  /// Shows a topic and marks a text in it, wherever it stands there; an empty text marks nothing.
  void ShowTopic(const QString& topic, const QString& marked = {});

  void GoBack();
  void GoForward();
  bool CanGoBack() const;
  bool CanGoForward() const;

 signals:
  /// Another topic is shown, whatever way led to it.
  void Shown(const QString& topic);

 private:
  void ReadIn(Browser* browser, const QString& reason, const HelpBook& book);
  /// Shows the page of the topic, unless a text is given that stands in place of it.
  void ShowPage(const QString& insteadOfIt = {});
  /// The browser's helper process has ended: once, the topic is loaded anew.
  void LoadAgain();

  QLabel* notice_;
  std::unique_ptr<TopicPane> pane_;  ///< null until the browser is loaded
  QString topic_;
  QString marked_;
  bool loadedAgain_ = false;
};

}  // namespace corvane
