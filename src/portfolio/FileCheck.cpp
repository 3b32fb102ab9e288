#include "portfolio/FileCheck.h"

#include <fstream>

#include "portfolio/DayRows.h"
#include "portfolio/InputFile.h"
#include "support/Clock.h"
#include "support/Paths.h"
#include "support/ProgramVersion.h"

namespace corvane {

namespace {

Refusal Message(const char* what, const FileError& error) {
  return {what + PathText(error.path) + "\n" + error.reason, "", "Error!", MessageIcon::None};
}

std::string FirstLineOf(const std::filesystem::path& file) {
  std::error_code failure;
  // A pipe would keep the program waiting.
  if (!std::filesystem::is_regular_file(file, failure)) return "";
  std::ifstream in(file, std::ios::binary);
  std::string line(kLongestRecord, '\0');
  in.read(line.data(), static_cast<std::streamsize>(line.size()));
  line.resize(static_cast<std::size_t>(in.gcount()));
  return line.substr(0, line.find('\n')) + "\n";
}

/// A run over one file.
class Run {
 public:
  Run(const PortfolioFiles& files, const std::atomic<bool>& cancel)
      : files_(files), cancel_(cancel), accounts_(PathText(files.accounts), cancel) {}

  std::optional<Refusal> Read(int threads, const auto& take, FileCheckEnd& end) {
    if (auto refusal = OpenBalances()) return refusal;
    if (accounts_.Error()) return FileNotRead(*accounts_.Error());
    AccountReader reader(accounts_.Source(), days_.get());
    if (!accounts_.Error() && !reader.Header().refusal.empty()) {
      return FileNotRead({files_.accounts, reader.Header().refusal});
    }
    RunPortfolio(reader, {.threads = threads}, cancel_, [&](const CheckedBatch& batch) {
      end.summary.Take(batch);
      take(std::make_shared<CheckedPart>(batch, reader.Header()),
           ProgressOf(batch.bytesRead, end.summary));
      return true;
    });
    for (const auto& [line, text] : reader.Notes()) TellNote(end, line, text);
    if (const auto unused = days_ && !cancel_ ? days_->FirstUnused() : std::nullopt) {
      TellNote(end, *unused, "of the daily balances: No statement asked for these days.");
    }
    if (accounts_.Error()) return FileNotRead(*accounts_.Error());
    if (balances_ && balances_->Error()) return FileNotRead(*balances_->Error());
    return std::nullopt;
  }

 private:
  std::optional<Refusal> OpenBalances() {
    if (files_.balances.empty()) return std::nullopt;
    balances_.emplace(PathText(files_.balances), cancel_);
    if (balances_->Error()) return FileNotRead(*balances_->Error());
    days_ = std::make_unique<DayReader>(balances_->Source());
    if (days_->Refusal().empty()) return std::nullopt;
    return FileNotRead({files_.balances, days_->Refusal()});
  }

  FileCheckProgress ProgressOf(std::size_t bytesRead, const PortfolioSummary& summary) const {
    const auto size = static_cast<double>(std::max<std::size_t>(1, accounts_.Size()));
    return {summary.Total(), std::min(1.0, static_cast<double>(bytesRead) / size)};
  }

  void TellNote(FileCheckEnd& end, std::size_t line, const std::string& text) const {
    if (cancel_) return;
    end.notes += (end.notes.empty() ? "Line " : " Line ") + std::to_string(line) + ": " + text;
  }

  const PortfolioFiles& files_;
  const std::atomic<bool>& cancel_;
  InputFile accounts_;
  std::optional<InputFile> balances_;
  std::unique_ptr<DayReader> days_;
};

}  // namespace

std::filesystem::path BalancesBeside(const std::filesystem::path& accounts) {
  std::filesystem::path name = accounts.stem();
  name += "-balances";
  name += accounts.extension();
  return accounts.parent_path() / name;
}

PortfolioFiles WithBalancesBeside(PortfolioFiles files) {
  std::error_code failure;
  const auto beside = BalancesBeside(files.accounts);
  const bool isBeside = std::filesystem::is_regular_file(beside, failure);
  if (files.balances.empty() && isBeside) files.balances = beside;
  return files;
}

std::string FilesText(const PortfolioFiles& files) {
  const std::string accounts = PathText(files.accounts);
  if (files.balances.empty()) return accounts;
  return accounts + ", daily balances: " + PathText(files.balances.filename());
}

PortfolioFiles TellApart(const std::vector<std::filesystem::path>& files) {
  PortfolioFiles told;
  for (const auto& file : files) {
    (IsDayHeader(FirstLineOf(file)) ? told.balances : told.accounts) = file;
  }
  return told;
}

FileCheckEnd CheckFile(
    const PortfolioFiles& files, int threads, const std::atomic<bool>& cancel,
    const std::function<void(std::shared_ptr<const CheckedPart>, const FileCheckProgress&)>& take) {
  FileCheckEnd end;
  end.refusal = Run(files, cancel).Read(threads, take, end);
  end.wasCancelled = cancel;
  return end;
}

ReportContent ReportOf(const PortfolioFiles& files, const FileCheckEnd& end) {
  return end.summary.Content(FilesText(files) + (end.wasCancelled ? " (not read to its end)" : ""),
                             std::string("Corvane ") + kProgramVersion, FormatDate(Today()));
}

Refusal FileNotRead(const FileError& error) {
  return Message("The file could not be read: ", error);
}

Refusal FileNotWritten(const FileError& error) {
  return Message("The file could not be written: ", error);
}

}  // namespace corvane
