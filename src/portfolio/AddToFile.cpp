#include "portfolio/AddToFile.h"

#include <set>

#include "disclosure/EntrySequence.h"
#include "portfolio/CheckRows.h"
#include "portfolio/DayRows.h"
#include "portfolio/FileCheck.h"
#include "support/Csv.h"
#include "support/NumberText.h"
#include "support/Paths.h"

namespace corvane {

namespace {

using std::filesystem::path;

/// A file that rows are added to.
class GrowingFile {
 public:
  /// @param header of the file, with its line end in LF
  GrowingFile(const path& file, const std::string& header) : file_(file) {
    std::error_code failure;
    if (!std::filesystem::exists(file, failure)) {
      text_ = header;
      return;
    }
    auto content = ReadWholeFile(file);
    if (const auto* error = std::get_if<FileError>(&content)) {
      refusal_ = FileNotRead(*error);
      return;
    }
    text_ = std::move(std::get<std::string>(content));
    if (text_.empty()) text_ = header;
    CheckHeader(header);
  }

  const std::optional<Refusal>& WhyNot() const { return refusal_; }

  void NoteAccounts(std::set<std::string>& accounts) const {
    for (const CsvRow& row : CsvRowsOf(text_)) {
      if (!row.cells.empty()) accounts.insert(row.cells.front());
    }
  }

  /// Writes the file with these rows, which end in LF, behind its own.
  std::optional<Refusal> Add(const std::string& rows) {
    if (!text_.ends_with('\n')) text_ += lineEnd_;
    for (const char c : rows) {
      if (c == '\n') {
        text_ += lineEnd_;
      } else {
        text_ += c;
      }
    }
    const auto error = WriteWholeFile(file_, text_);
    return error ? std::optional(FileNotWritten(*error)) : std::nullopt;
  }

 private:
  void CheckHeader(const std::string& header) {
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    std::string_view first = std::string_view(text_).substr(0, text_.find('\n'));
    if (first.starts_with(kMark)) first.remove_prefix(kMark.size());
    if (first.ends_with('\r')) {
      first.remove_suffix(1);
      lineEnd_ = "\r\n";
    }
    if (std::string(first) + "\n" == header) return;
    refusal_ = FileNotWritten({file_,
                               "Its first line names other columns than those of a check. "
                               "Please choose another file, or a new name."});
  }

  path file_;
  std::string text_;
  std::string lineEnd_ = "\n";
  std::optional<Refusal> refusal_;
};

/// A number that none of the accounts has.
std::string NewAccount(const std::set<std::string>& accounts) {
  std::size_t number = 1;
  while (accounts.contains(std::to_string(number))) ++number;
  return std::to_string(number);
}

std::string DayRowsOf(const std::string& account, const DailyBalances& daily) {
  std::string rows;
  for (std::size_t day = 0; day < daily.days.size(); ++day) {
    const auto& [balance, rate] = daily.days[day];
    // A day that was left empty counted as 0.
    AppendDayRow(rows, account, FormatDate(AddDays(daily.start, static_cast<int>(day))),
                 Trim(balance).empty() ? "0" : balance, daily.TakesRates() ? rate : "");
  }
  return rows;
}

std::string Added(const path& file) {
  return "Added to " + PathText(file);
}

}  // namespace

AddOutcome AddToFile(const path& file, const AccountHeader& header, const DisclosureCheck& check) {
  if (check.completed < EntryCount(check)) {
    return Refusal{"Please calculate all periods of the account before it is added to a file."};
  }
  GrowingFile growing(file, CheckFileHeader());
  if (growing.WhyNot()) return *growing.WhyNot();
  std::set<std::string> accounts;
  growing.NoteAccounts(accounts);
  if (auto refusal = growing.Add(RowsOf(NewAccount(accounts), header, check))) return *refusal;
  return Added(file);
}

AddOutcome AddToFile(const path& file, const AccountHeader& header, const StatementCheck& check) {
  GrowingFile growing(file, CheckFileHeader());
  const path beside = BalancesBeside(file);
  GrowingFile days(beside, std::string(kDayColumns) + "\n");
  const InterestDetail* detail = DetailOf(check);
  if (growing.WhyNot()) return *growing.WhyNot();
  if (detail && days.WhyNot()) return *days.WhyNot();
  std::set<std::string> accounts;
  growing.NoteAccounts(accounts);
  if (!days.WhyNot()) days.NoteAccounts(accounts);
  const std::string account = NewAccount(accounts);
  // The days first: a statement without them would be another check.
  if (detail) {
    if (auto refusal = days.Add(DayRowsOf(account, detail->daily))) return *refusal;
  }
  if (auto refusal = growing.Add(RowsOf(account, header, check))) return *refusal;
  return Added(file) + (detail ? ", its days to " + PathText(beside.filename()) : "");
}

}  // namespace corvane
