#include "windows/portfolio/ResultsModel.h"

#include <QFont>

namespace corvane {

namespace {

QString Text(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

void ResultsModel::Clear() {
  task_.Stop();
  beginResetModel();
  shown_.clear();
  parts_.clear();
  rowsRead_ = 0;
  endResetModel();
}

void ResultsModel::Append(const CheckedParts& parts) {
  const std::size_t first = parts_.size();
  parts_.insert(parts_.end(), parts.begin(), parts.end());
  for (const auto& part : parts) rowsRead_ += part->Rows().size();
  // What is under way looks up what has come since when it is done.
  if (task_.IsRunning()) return;
  if (query_.IsInFileOrder()) return AppendFrom(first);
  StartFinding();
}

void ResultsModel::AppendFrom(std::size_t part) {
  const auto from = static_cast<std::ptrdiff_t>(part);
  const auto found = FindRows({parts_.begin() + from, parts_.end()}, query_);
  if (found.empty()) return;
  const int count = rowCount();
  beginInsertRows({}, count, count + static_cast<int>(found.size()) - 1);
  shown_.insert(shown_.end(), found.begin(), found.end());
  endInsertRows();
}

void ResultsModel::Find(const RowQuery& query) {
  if (query == query_) return;
  query_ = query;
  if (!task_.IsRunning()) StartFinding();
}

void ResultsModel::StartFinding() {
  task_.Start([this, parts = parts_, query = query_](const auto&) -> BackgroundTask::Done {
    auto rows = std::make_shared<std::vector<const CheckedRow*>>(FindRows(parts, query));
    return [this, rows, query, count = parts.size()] { Show(std::move(*rows), query, count); };
  });
}

void ResultsModel::Show(std::vector<const CheckedRow*> rows, const RowQuery& query,
                        std::size_t parts) {
  const bool isOutdated = query != query_;
  if (!isOutdated) {
    beginResetModel();
    shown_ = std::move(rows);
    endResetModel();
  }
  const bool hasMore = parts < parts_.size();
  if (hasMore && !isOutdated && query.IsInFileOrder()) AppendFrom(parts);
  if (isOutdated || (hasMore && !query.IsInFileOrder())) StartFinding();
  if (!isOutdated) emit Found();
}

void ResultsModel::Settle() {
  while (task_.IsRunning()) task_.Finish();
}

const CheckedPart& ResultsModel::PartOf(const CheckedRow& row) const {
  const auto isIn = [&row](const auto& part) {
    const std::vector<CheckedRow>& rows = part->Rows();
    const std::less_equal<> isBefore;
    return isBefore(rows.data(), &row) && isBefore(&row, &rows.back());
  };
  return **std::ranges::find_if(parts_, isIn);
}

int ResultsModel::PlaceOf(const CheckedRow* row) const {
  const auto place = std::ranges::find(shown_, row);
  return place == shown_.end() ? -1 : static_cast<int>(place - shown_.begin());
}

int ResultsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

int ResultsModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kTableColumns;
}

QVariant ResultsModel::data(const QModelIndex& index, int role) const {
  const auto column = static_cast<TableColumn>(index.column());
  const CheckedRow& row = RowAt(index.row());
  if (role == Qt::DisplayRole) return Text(CellText(row, column));
  if (role == Qt::ToolTipRole && column == TableColumn::Message) {
    return Text(row.message).toHtmlEscaped();
  }
  if (role == Qt::TextAlignmentRole) {
    return QVariant(Qt::AlignVCenter | (IsNumeric(column) ? Qt::AlignRight : Qt::AlignLeft));
  }
  if (role == Qt::FontRole && column == TableColumn::Verdict) {
    QFont font;
    font.setBold(row.figures.verdict == Verdict::Violation && !row.account->isRefused);
    return font;
  }
  return {};
}

QVariant ResultsModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation == Qt::Vertical || role != Qt::DisplayRole) return {};
  return QString(HeadingOf(static_cast<TableColumn>(section)));
}

}  // namespace corvane
