#include "windows/portfolio/ResultsTable.h"

#include <QtWidgets>

namespace corvane {

namespace {

/// A text of each column but the last that has to be read whole.
constexpr const char* kWidest[] = {"1,000,000",
                                   "0000000000",
                                   "APY VIOLATION",
                                   "Disclosed APY",
                                   "Computed APY",
                                   "Difference",
                                   "99,999.99",
                                   "Disclosure, TIERING Method B",
                                   "Certificate of deposit"};

}  // namespace

ResultsTable::ResultsTable(QWidget* parent) : QTableView(parent) {
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setStretchLastSection(true);
  horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
  horizontalHeader()->setSortIndicatorShown(true);
  horizontalHeader()->setSectionsClickable(true);
  horizontalHeader()->setHighlightSections(false);
}

void ResultsTable::FitColumns() {
  QFont bold = font();
  bold.setBold(true);
  const QFontMetrics metrics(bold);
  const int space = metrics.horizontalAdvance("00");
  verticalHeader()->setDefaultSectionSize(metrics.lineSpacing() + space / 2);
  int column = 0;
  for (const char* text : kWidest) {
    setColumnWidth(column++, metrics.horizontalAdvance(text) + space);
  }
}

void ResultsTable::FillSortMenu(QMenu& menu) {
  auto* group = new QActionGroup(&menu);
  for (int column = 0; column < kTableColumns; ++column) {
    // Line has the key 1, and what comes after 9 has 0.
    const int key = (column + 1) % kTableColumns;
    const QString heading = HeadingOf(static_cast<TableColumn>(column));
    QAction* item = menu.addAction("Sort by " + heading);
    item->setObjectName(QString("mnuSort(%1)").arg(column));
    item->setShortcut(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_0 + key));
    item->setCheckable(true);
    item->setChecked(column == 0);
    group->addAction(item);
    connect(item, &QAction::triggered, this, [this, column] { SortBy(column); });
  }
  connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, group,
          [group](int column) { group->actions().at(column)->setChecked(true); });
}

void ResultsTable::SortBy(int column) {
  const bool again = Order().column == static_cast<TableColumn>(column);
  const bool descending = again && !Order().descending;
  horizontalHeader()->setSortIndicator(column,
                                       descending ? Qt::DescendingOrder : Qt::AscendingOrder);
}

RowQuery ResultsTable::Order() const {
  RowQuery query;
  query.column = static_cast<TableColumn>(horizontalHeader()->sortIndicatorSection());
  query.descending = horizontalHeader()->sortIndicatorOrder() == Qt::DescendingOrder;
  return query;
}

}  // namespace corvane
