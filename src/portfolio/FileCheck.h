#pragma once

#include <atomic>
#include <filesystem>
#include <functional>
#include <optional>
#include <vector>

#include "account/Refusal.h"
#include "portfolio/CheckedPart.h"
#include "portfolio/PortfolioReport.h"

namespace corvane {

/// A file of accounts and, where it has one, that of their daily balances.
struct PortfolioFiles {
  std::filesystem::path accounts;
  std::filesystem::path balances;  ///< empty for none
};

/// Where the daily balances of a file are looked for and kept: "accounts-balances.csv" beside
/// "accounts.csv".
std::filesystem::path BalancesBeside(const std::filesystem::path& accounts);

/// The files with the balances beside them, where none were chosen and they exist.
PortfolioFiles WithBalancesBeside(PortfolioFiles files);

/// What a window says of the files: "/folder/accounts.csv, daily balances: days.csv".
std::string FilesText(const PortfolioFiles& files);

/// Tells files that were chosen together apart by their first lines. The last one of each kind
/// counts; a file that cannot be read counts as one of accounts.
PortfolioFiles TellApart(const std::vector<std::filesystem::path>& files);

/// What a file gave.
struct FileCheckEnd {
  std::optional<Refusal> refusal;  ///< why it could not be read, or not to its end
  std::string notes;               ///< what is told of it beside its rows
  PortfolioSummary summary;
  bool wasCancelled = false;
};

/// What a report of the file puts into its template.
ReportContent ReportOf(const PortfolioFiles& files, const FileCheckEnd& end);

/// How far a file is read.
struct FileCheckProgress {
  AccountCounts counts;
  double done = 0;  ///< of its bytes, 0 to 1
};

/// Checks a file. Its parts come to `take` in their order, in which thread ever, while it is read.
FileCheckEnd CheckFile(
    const PortfolioFiles& files, int threads, const std::atomic<bool>& cancel,
    const std::function<void(std::shared_ptr<const CheckedPart>, const FileCheckProgress&)>& take);

/// What is said when a file of accounts or results cannot be read or written.
Refusal FileNotRead(const FileError& error);
Refusal FileNotWritten(const FileError& error);

}  // namespace corvane
