#pragma once

#include <QTableView>

#include "portfolio/ResultTable.h"

namespace corvane {

/// The table of results: rows of the same height, which cost nothing while they are not seen, and a
/// heading that sorts.
class ResultsTable : public QTableView {
  Q_OBJECT

 public:
  explicit ResultsTable(QWidget* parent);

  /// Makes the columns as wide as what they usually hold.
  void FitColumns();
  /// Typing looks nothing up, which would take long in a large table; the filter does.
  void keyboardSearch(const QString&) override {}
  /// An item, and a key, for each column: chosen, it sorts as a click on the heading does.
  void FillSortMenu(QMenu& menu);
  /// A query of all rows, in the order that the heading shows.
  RowQuery Order() const;

 private:
  void SortBy(int column);
};

}  // namespace corvane
