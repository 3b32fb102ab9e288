#pragma once

#include <memory>
#include <memory_resource>
#include <optional>
#include <string>
#include <vector>

#include "portfolio/AccountRows.h"
#include "portfolio/DayReader.h"
#include "support/Csv.h"

namespace corvane {

/// Accounts that are read, checked and written together. It holds the texts of its rows.
struct AccountBatch {
  std::vector<PortfolioRow> rows;

  std::size_t Size() const { return accounts.size(); }
  AccountRows Account(std::size_t index) const;
  /// Empties it, keeping what it needs for the next accounts.
  void Clear();
  /// A copy of the text that lives as long as the accounts.
  std::string_view Keep(std::string_view text);

  struct Span {
    std::size_t first, count;
    std::shared_ptr<const AccountDays> days;
  };
  std::vector<Span> accounts;
  std::pmr::monotonic_buffer_resource texts{1 << 18};
};

/// Something that is told of a file beside its rows.
struct FileNote {
  std::size_t line;
  std::string text;
};

/// Takes a portfolio file apart into accounts. Memory does not grow with the file.
class AccountReader {
 public:
  /// Reads the header. The daily balances, of which the statements take theirs, may be missing.
  AccountReader(CsvReader::Source source, DayReader* days);

  const PortfolioHeader& Header() const { return header_; }
  /// Adds accounts to the batch until it holds so many rows; false when none are left.
  bool Read(AccountBatch& batch, std::size_t mostRows);
  const std::vector<FileNote>& Notes() const { return notes_; }
  std::size_t BytesRead() const { return csv_.BytesRead(); }

 private:
  /// A row that an account of too many rows goes on with.
  struct Overlong {
    std::string account, check, kind;
    PortfolioRow First() const;
  };

  void ReadHeader();
  void Advance();
  void NoteLineEnd();
  void TakeAccount(AccountBatch& batch);
  void TakeFurtherRows(AccountBatch& batch, std::size_t first, std::size_t anchor);
  bool SkipsOverlong(AccountBatch& batch);
  void TakeRow(AccountBatch& batch);
  void DropRow(AccountBatch& batch);
  const char* DamageOfRow(AccountBatch& batch) const;
  void CopyRow(AccountBatch& batch, PortfolioRow& row);
  void RewriteRow(AccountBatch& batch, PortfolioRow& row);
  bool IsUnknown(const PortfolioRow& row) const;

  CsvReader csv_;
  DayReader* days_;
  const CsvRecord* record_ = nullptr;  ///< the next one that was not taken yet
  PortfolioHeader header_;
  std::string headerText_;
  std::vector<std::pair<std::size_t, std::size_t>> used_;  ///< place and column
  std::optional<Overlong> overlong_;
  std::optional<LineEnd> lineEnd_;
  bool mixesLineEnds_ = false;
  std::vector<FileNote> notes_;
  std::string buffer_;
};

}  // namespace corvane
