#pragma once

#include <span>

#include <QDockWidget>

#include "disclosure/EntryOverview.h"

class QLabel;
class QMainWindow;
class QTreeWidget;

namespace corvane {

/// The column beside the fields of the entry window: which entry the window stands at, and the
/// entries that were made. A click on one before it, or Enter, asks to go back to it. Its size
/// comes from the font, and it keeps its place while there is no entry, so that nothing moves
/// sideways when it fills.
class EntryList : public QDockWidget {
  Q_OBJECT

 public:
  explicit EntryList(QWidget* parent);

  /// At the right of the fields, or below them where the window is too narrow for both.
  void PlaceIn(QMainWindow& window);

  /// The entries in their order, while the window stands at the current one. Without a heading
  /// there is nothing to list ever.
  void ShowEntries(const std::string& heading, std::span<const EntryLine> entries, int current);

 signals:
  /// The person chose an entry, to go back to it when it stands before the current one.
  void GoBackTo(int entry);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddEntry(const EntryLine& entry, int current);
  void SetColumnsByFont();

  /// Nothing looks like a list before there is one; below the fields it leaves them its room.
  void ShowOrCloseUp();

  QLabel* heading_;
  QWidget* place_;  ///< of the list
  QTreeWidget* list_;
  int widthBeside_ = 0;
};

}  // namespace corvane
