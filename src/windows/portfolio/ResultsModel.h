#pragma once

#include <QAbstractTableModel>

#include "portfolio/ResultTable.h"
#include "windows/portfolio/BackgroundTask.h"

namespace corvane {

/// The results of a file as a table that grows while the file is read. Sorting and filtering run
/// beside the window; until they are done the table stays as it is.
class ResultsModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  void Clear();
  /// Adds what was checked of the file since the last time.
  void Append(const CheckedParts& parts);
  void Find(const RowQuery& query);
  const RowQuery& Query() const { return query_; }
  /// Waits until the table shows what was asked for.
  void Settle();
  bool IsSettled() const { return !task_.IsRunning(); }

  const CheckedParts& Parts() const { return parts_; }
  std::size_t RowsRead() const { return rowsRead_; }
  const CheckedRow& RowAt(int row) const { return *shown_.at(static_cast<std::size_t>(row)); }
  /// The part that holds the row.
  const CheckedPart& PartOf(const CheckedRow& row) const;
  /// Where a row is shown; -1 where it is not.
  int PlaceOf(const CheckedRow* row) const;

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 signals:
  void Found();  ///< the table shows other rows, or the same in another order

 private:
  void StartFinding();
  void Show(std::vector<const CheckedRow*> rows, const RowQuery& query, std::size_t parts);
  void AppendFrom(std::size_t part);

  RowQuery query_;
  CheckedParts parts_;
  std::size_t rowsRead_ = 0;
  std::vector<const CheckedRow*> shown_;
  BackgroundTask task_;
};

}  // namespace corvane
