#include "portfolio/AccountReader.h"

#include <algorithm>
#include <cstring>

namespace corvane {

namespace {

/// An account with more rows than this has no place in memory, and in no window either.
constexpr std::size_t kMostRowsOfAccount = 64;

constexpr const char* kHeaderAgain = "The header stands here again.";
constexpr const char* kTooManyRows = "The account has too many rows.";

}  // namespace

AccountRows AccountBatch::Account(std::size_t index) const {
  const Span& span = accounts.at(index);
  return {std::span(rows).subspan(span.first, span.count), span.days};
}

void AccountBatch::Clear() {
  rows.clear();
  accounts.clear();
  texts.release();
}

std::string_view AccountBatch::Keep(std::string_view text) {
  if (text.empty()) return {};
  auto* copy = static_cast<char*>(texts.allocate(text.size(), 1));
  std::memcpy(copy, text.data(), text.size());
  return {copy, text.size()};
}

PortfolioRow AccountReader::Overlong::First() const {
  PortfolioRow row;
  row.cells[static_cast<std::size_t>(Column::Account)] = account;
  row.cells[static_cast<std::size_t>(Column::Check)] = check;
  row.cells[static_cast<std::size_t>(Column::Kind)] = kind;
  return row;
}

AccountReader::AccountReader(CsvReader::Source source, DayReader* days)
    : csv_(std::move(source)), days_(days) {
  record_ = csv_.Next();
  ReadHeader();
  if (header_.refusal.empty()) Advance();
}

void AccountReader::ReadHeader() {
  header_.refusal = csv_.Refusal();
  if (header_.refusal.empty() && !record_) header_.refusal = "The file is empty.";
  if (!header_.refusal.empty()) return;
  if (record_->damage != CsvDamage::None) {
    header_.refusal = DamageText(record_->damage);
    return;
  }
  headerText_ = record_->text;
  header_ = HeaderOf(record_->cells, csv_.Separator());
  if (record_->end == LineEnd::CrLf) header_.lineEnd = "\r\n";
  if (headerText_.find('\r') != headerText_.npos) {
    header_.refusal = "Lines end in CR alone. Please save the file with LF or CR LF.";
  }
  lineEnd_ = record_->end;
  for (std::size_t column = 0; column < kColumns; ++column) {
    if (header_.places[column]) used_.emplace_back(*header_.places[column], column);
  }
}

void AccountReader::Advance() {
  record_ = csv_.Next();
  if (record_) NoteLineEnd();
}

void AccountReader::NoteLineEnd() {
  if (record_->end == LineEnd::None) {
    notes_.push_back({record_->line, "The last line has no end; the file may be cut there."});
  } else if (record_->end != lineEnd_ && !mixesLineEnds_ && record_->damage != CsvDamage::TooLong) {
    mixesLineEnds_ = true;
    notes_.push_back({record_->line, "The line ends otherwise than the lines above."});
  }
}

bool AccountReader::Read(AccountBatch& batch, std::size_t mostRows) {
  while (record_ && batch.rows.size() < mostRows) TakeAccount(batch);
  return !batch.rows.empty();
}

/// Damage may hide to which account a row belongs: it then counts as a row of the account beside
/// it, so that no account is checked without one of its rows.
void AccountReader::TakeAccount(AccountBatch& batch) {
  const std::size_t first = batch.rows.size();
  if (SkipsOverlong(batch)) return;
  TakeRow(batch);
  Advance();
  std::size_t anchor = first;
  if (*batch.rows[first].damage && record_) {
    TakeRow(batch);
    const PortfolioRow& damaged = batch.rows[first];
    const PortfolioRow& next = batch.rows.back();
    const bool sameAccount = damaged.Cell(Column::Account) == next.Cell(Column::Account);
    if (HasFurtherRows(next) && (IsUnknown(damaged) || sameAccount)) {
      anchor = first + 1;
      Advance();
    } else {
      DropRow(batch);
    }
  }
  TakeFurtherRows(batch, first, anchor);
  AccountBatch::Span span{first, batch.rows.size() - first, nullptr};
  const PortfolioRow& row = batch.rows[anchor];
  if (days_ && IsStatement(row)) span.days = days_->Of(row.Cell(Column::Account));
  batch.accounts.push_back(std::move(span));
}

void AccountReader::TakeFurtherRows(AccountBatch& batch, std::size_t first, std::size_t anchor) {
  if (!HasFurtherRows(batch.rows[anchor])) return;
  while (record_) {
    TakeRow(batch);
    const PortfolioRow& row = batch.rows.back();
    const bool belongs = (*row.damage && IsUnknown(row)) || Continues(batch.rows[anchor], row);
    if (!belongs) return DropRow(batch);
    Advance();
    if (batch.rows.size() - first < kMostRowsOfAccount) continue;
    const auto text = [&](Column column) { return std::string(batch.rows[anchor].Cell(column)); };
    overlong_ = {text(Column::Account), text(Column::Check), text(Column::Kind)};
    return;
  }
}

/// Rows of an account that has too many already stand alone and are refused.
bool AccountReader::SkipsOverlong(AccountBatch& batch) {
  if (!overlong_) return false;
  TakeRow(batch);
  PortfolioRow& row = batch.rows.back();
  if (!Continues(overlong_->First(), row)) {
    DropRow(batch);
    overlong_.reset();
    return false;
  }
  row.damage = kTooManyRows;
  batch.accounts.push_back({batch.rows.size() - 1, 1, nullptr});
  Advance();
  return true;
}

/// Copies the next record into the batch; it is still the next one.
void AccountReader::TakeRow(AccountBatch& batch) {
  PortfolioRow& row = batch.rows.emplace_back();
  row.line = record_->line;
  row.damage = DamageOfRow(batch);
  const bool isWhole = record_->cells.size() == header_.cells && !record_->text.empty();
  const bool isOneLineOfText =
      record_->damage != CsvDamage::OpenQuote && record_->damage != CsvDamage::TextBehindQuote;
  if (isWhole && isOneLineOfText && header_.dropped.empty()) {
    CopyRow(batch, row);
  } else {
    RewriteRow(batch, row);
  }
}

void AccountReader::DropRow(AccountBatch& batch) {
  batch.rows.pop_back();
}

const char* AccountReader::DamageOfRow(AccountBatch& batch) const {
  if (record_->damage != CsvDamage::None) return DamageText(record_->damage);
  if (record_->text == headerText_) return kHeaderAgain;
  if (record_->cells.size() == header_.cells) return "";
  const std::string text = "The row has " + std::to_string(record_->cells.size()) +
                           " cells and the header " + std::to_string(header_.cells) + ".";
  return batch.Keep({text.c_str(), text.size() + 1}).data();
}

/// The row as it stands; its cells lie in the copy.
void AccountReader::CopyRow(AccountBatch& batch, PortfolioRow& row) {
  row.text = batch.Keep(record_->text);
  for (const auto& [place, column] : used_) {
    const std::string_view cell = record_->cells[place];
    if (cell.empty()) continue;
    if (cell.front() == '"') {
      row.cells[column] = batch.Keep(CsvText(cell, buffer_));
    } else {
      row.cells[column] = row.text.substr(
          static_cast<std::size_t>(cell.data() - record_->text.data()), cell.size());
    }
  }
}

/// What can be read of the row, with as many cells as the header has that are written again.
void AccountReader::RewriteRow(AccountBatch& batch, PortfolioRow& row) {
  std::string text;
  bool isFirst = true;
  for (std::size_t place = 0; place < header_.cells; ++place) {
    if (std::ranges::find(header_.dropped, place) != header_.dropped.end()) continue;
    if (!isFirst) text += header_.separator;
    isFirst = false;
    if (place < record_->cells.size()) text += record_->cells[place];
  }
  row.text = batch.Keep(text);
  for (const auto& [place, column] : used_) {
    if (place < record_->cells.size()) {
      row.cells[column] = batch.Keep(CsvText(record_->cells[place], buffer_));
    }
  }
}

/// Whether damage hides the account of the row.
bool AccountReader::IsUnknown(const PortfolioRow& row) const {
  return *row.damage && row.Cell(Column::Account).empty();
}

}  // namespace corvane
