#pragma once

#include <memory>
#include <memory_resource>
#include <string_view>
#include <vector>

#include "portfolio/PortfolioRun.h"

namespace corvane {

/// An account of a file and what came of it, as text that gives the same check again.
struct CheckedAccount {
  std::string_view text;  ///< its rows with their results, as a run writes them
  std::string_view days;  ///< its daily balances as rows of kDayColumns; empty for none
  bool isStatement = false;
  AccountKind kind = AccountKind::Regular;
  bool isRefused = false;
  bool isDamaged = false;  ///< a row of it, or one of its days, could not be read
  bool lacksDays = false;  ///< a statement without an average balance, and no daily balances
};

/// One line of a table of results: a row of the file or, by method B, one end of its tier.
struct CheckedRow {
  const CheckedAccount* account = nullptr;
  std::size_t line = 0;  ///< in the file
  std::string_view name, description, message;
  Figures figures;
  bool isHighEnd = false;
};

/// Accounts that were checked together, with their texts. It does not change, so that several
/// threads may read it.
class CheckedPart {
 public:
  CheckedPart(const CheckedBatch& batch, const PortfolioHeader& header);
  CheckedPart(const CheckedPart&) = delete;
  CheckedPart& operator=(const CheckedPart&) = delete;

  /// The header of the texts of its accounts.
  std::string_view Header() const { return header_; }
  const std::vector<CheckedAccount>& Accounts() const { return accounts_; }
  const std::vector<CheckedRow>& Rows() const { return rows_; }

 private:
  std::string_view Keep(std::string_view text);
  void TakeAccount(const AccountRows& account, const AccountOutcome& outcome,
                   const PortfolioHeader& header);
  void TakeRow(const PortfolioRow& row, const RowOutcome& outcome);

  std::pmr::monotonic_buffer_resource texts_{1 << 14};
  std::string_view header_;
  std::vector<CheckedAccount> accounts_;
  std::vector<CheckedRow> rows_;
};

/// The parts of a file in its order.
using CheckedParts = std::vector<std::shared_ptr<const CheckedPart>>;

}  // namespace corvane
