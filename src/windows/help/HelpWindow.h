#pragma once

#include <memory>
#include <optional>

#include "account/Refusal.h"
#include "platform/HelpBook.h"
#include "windows/frame/Form.h"

class QListWidgetItem;
class QTreeWidgetItem;

namespace Ui {
class HelpWindow;
}

namespace corvane {

class HelpView;

/// The help: table of contents, find in all topics, and the topic that is read.
class HelpWindow : public Form {
  Q_OBJECT

 public:
  explicit HelpWindow(WindowRegistry& registry);
  ~HelpWindow() override;

  /// Opens the help file, unless it is open, at the topic of a context number, or says why not.
  std::optional<Refusal> Open(const std::filesystem::path& file, int context);

 protected:
  /// A modal window keeps all others from being used but those that belong to it, as this one has
  /// to when it is asked for from there.
  void showEvent(QShowEvent* event) override;

 private:
  void PlaceView();
  void BindButtons();
  void BindLists();
  void BindKeys();
  void Read(HelpBook book);
  void AddContents(const std::vector<HelpEntry>& entries, QTreeWidgetItem* above);
  void ChooseInContents(const QString& topic);
  void cmdFind_Click();
  void OpenFound(const QListWidgetItem* item);
  void TopicShown(const QString& topic);

  std::unique_ptr<Ui::HelpWindow> ui_;
  std::optional<HelpBook> book_;
  std::unique_ptr<HelpView> view_;  ///< reads the book, so it goes before it
};

}  // namespace corvane
