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

RowQuery ResultsTable::Order() const {
  RowQuery query;
  query.column = static_cast<TableColumn>(horizontalHeader()->sortIndicatorSection());
  query.descending = horizontalHeader()->sortIndicatorOrder() == Qt::DescendingOrder;
  return query;
}

}  // namespace corvane
