#pragma once

#include <array>
#include <string>
#include <vector>

#include "portfolio/PortfolioRun.h"
#include "reports/ReportFile.h"

namespace corvane {

inline constexpr ReportNames kPortfolioReport = {
    "Portfolio_Report_template.txt", "Portfolio_Report.html", "", "Portfolio_Report.html"};

/// How many accounts came to what.
struct AccountCounts {
  std::size_t accounts = 0, violations = 0, refused = 0;

  std::size_t Ok() const { return accounts - violations - refused; }
};

/// "12 accounts: 9 OK, 2 violations, 1 refused".
std::string CountsText(const AccountCounts& counts);

/// Gathers what a report of a run shows: counts by kind, and the rows of violations, of refusals
/// and of notes, of each no more than kMostRows, so that memory does not grow with the file.
class PortfolioSummary {
 public:
  static constexpr std::size_t kMostRows = 5000;

  void Take(const CheckedBatch& batch);

  const AccountCounts& Total() const { return total_; }
  std::size_t RowCount() const { return rows_; }

  /// What the report puts into its template. The texts name what was read and the program.
  ReportContent Content(const std::string& files, const std::string& program,
                        const std::string& moment) const;

 private:
  /// Rows of a table of the report, and how many there would be.
  struct Listed {
    std::vector<std::string> rows;
    std::size_t count = 0;

    /// Counts a row; it is made only where it finds a place.
    template <class Make>
    void Add(Make make) {
      if (++count <= kMostRows) rows.push_back(make());
    }
    std::vector<std::string> Table() const;
  };

  void TakeAccount(const AccountRows& account, const AccountOutcome& outcome);
  void TakeRow(const PortfolioRow& row, const RowOutcome& outcome, bool isRefused);

  /// Of disclosures and statements, each by kind.
  std::array<std::array<AccountCounts, 4>, 2> counts_{};
  AccountCounts total_;
  std::size_t rows_ = 0;
  Listed violations_, refused_, notes_;
};

}  // namespace corvane
