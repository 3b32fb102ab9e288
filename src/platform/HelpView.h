#pragma once

#include <memory>

#include <QWidget>

namespace corvane {

class HelpBook;

/// Shows the topics of a help book and nothing else: pages, pictures and style come from the book,
/// links lead from topic to topic, every other address is refused, scripts and plug-ins are off and
/// nothing is stored.
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
  struct Browser;

  void Loaded();
  /// The browser's helper process has ended: once, the topic is loaded anew.
  void LoadAgain();

  std::unique_ptr<Browser> browser_;
  QString marked_;
  bool loadedAgain_ = false;
};

/// Makes the address of topics known to the browser; to be called before the application object is
/// made.
void PrepareHelpView();

}  // namespace corvane
