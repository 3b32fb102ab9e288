#include "portfolio/DayReader.h"

#include "support/NumberText.h"

namespace corvane {

DayReader::DayReader(CsvReader::Source source) : csv_(std::move(source)) {
  refusal_ = csv_.Refusal();
  record_ = csv_.Next();
  if (refusal_.empty()) ReadHeader();
  if (refusal_.empty()) record_ = csv_.Next();
}

void DayReader::ReadHeader() {
  cells_ = record_ ? record_->cells.size() : 0;
  for (std::size_t place = 0; place < cells_; ++place) {
    const std::string_view name = Trim(CsvText(record_->cells[place], buffer_));
    if (name == "account") account_ = place;
    if (name == "date") date_ = place;
    if (name == "balance") balance_ = place;
    if (name == "rate") rate_ = place;
  }
  if (!account_ || !date_ || !balance_) {
    refusal_ = "The first line has to name the columns account, date and balance.";
  }
}

std::string DayReader::Cell(const CsvRecord& record, std::optional<std::size_t> place) {
  if (!place || *place >= record.cells.size()) return "";
  return std::string(CsvText(record.cells[*place], buffer_));
}

DayRow DayReader::RowOf(const CsvRecord& record) {
  DayRow row{record.line, Cell(record, date_), Cell(record, balance_), Cell(record, rate_)};
  if (record.damage != CsvDamage::None) {
    row.damage = DamageText(record.damage);
  } else if (record.cells.size() != cells_) {
    row.damage = "The row has not as many cells as the header.";
  }
  return row;
}

/// Reads the days of the next account. A row whose account cannot be read stays with the one above.
bool DayReader::ReadAccount() {
  if (!record_ || !refusal_.empty()) return false;
  auto days = std::make_shared<AccountDays>();
  days->account = Cell(*record_, account_);
  days->rows.reserve(31);
  while (record_ && days->rows.size() < kMostDaysAhead) {
    const bool isUnknown = record_->cells.size() <= *account_;
    if (!isUnknown && CsvText(record_->cells[*account_], buffer_) != days->account) break;
    days->rows.push_back(RowOf(*record_));
    record_ = csv_.Next();
  }
  daysWaiting_ += days->rows.size();
  waiting_.push_back({std::move(days)});
  return true;
}

std::shared_ptr<const AccountDays> DayReader::Of(std::string_view account) {
  const auto isDone = [&](const Waiting& one) {
    return one.isUsed && one.days->account != account;
  };
  while (!waiting_.empty() && isDone(waiting_.front())) Forget(1);
  for (std::size_t place = 0;; ++place) {
    const bool mayRead = daysWaiting_ < kMostDaysAhead;
    if (place == waiting_.size() && (!mayRead || !ReadAccount())) return nullptr;
    if (waiting_[place].days->account == account) return Use(place);
  }
}

std::shared_ptr<const AccountDays> DayReader::Use(std::size_t place) {
  waiting_[place].isUsed = true;
  auto days = waiting_[place].days;
  // Days that nobody asks for must not keep those behind them from being read.
  if (daysWaiting_ > kMostDaysAhead / 2) Forget(place);
  return days;
}

void DayReader::Forget(std::size_t count) {
  for (; count > 0; --count) {
    const auto& [days, isUsed] = waiting_.front();
    if (!isUsed && !firstUnused_) firstUnused_ = days->rows.front().line;
    daysWaiting_ -= days->rows.size();
    waiting_.pop_front();
  }
}

std::optional<std::size_t> DayReader::FirstUnused() {
  Forget(waiting_.size());
  if (ReadAccount()) Forget(1);
  return firstUnused_;
}

}  // namespace corvane
