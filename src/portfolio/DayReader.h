#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "portfolio/AccountRows.h"
#include "support/Csv.h"

namespace corvane {

/// Reads a file of daily balances (account, date, balance and, for stepped accounts, rate) beside
/// the file of its statements. The accounts come in the order of the statements; what stands
/// elsewhere is found as long as no more than kMostDaysAhead days lie between.
class DayReader {
 public:
  static constexpr std::size_t kMostDaysAhead = 50000;

  explicit DayReader(CsvReader::Source source);

  /// Why the file cannot be read; empty when it can.
  const std::string& Refusal() const { return refusal_; }
  /// The days of an account; nothing where it has none.
  std::shared_ptr<const AccountDays> Of(std::string_view account);
  /// The first line with days that no statement has asked for so far; nothing while there is none.
  std::optional<std::size_t> FirstUnused();

 private:
  struct Waiting {
    std::shared_ptr<const AccountDays> days;
    bool isUsed = false;
  };

  void ReadHeader();
  bool ReadAccount();
  DayRow RowOf(const CsvRecord& record);
  std::string Cell(const CsvRecord& record, std::optional<std::size_t> place);
  std::shared_ptr<const AccountDays> Use(std::size_t place);
  void Forget(std::size_t count);

  CsvReader csv_;
  const CsvRecord* record_ = nullptr;
  std::string refusal_;
  std::size_t cells_ = 0;
  std::optional<std::size_t> account_, date_, balance_, rate_;
  std::deque<Waiting> waiting_;
  std::size_t daysWaiting_ = 0;
  std::optional<std::size_t> firstUnused_;
  std::string buffer_;
};

}  // namespace corvane
