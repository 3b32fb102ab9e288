#include "portfolio/CheckRun.h"

#include <cstdio>

#include "portfolio/ResultRows.h"
#include "support/Clock.h"
#include "support/NumberText.h"
#include "support/Paths.h"
#include "support/ProgramVersion.h"

namespace corvane {

namespace {

std::size_t SizeOf(const std::vector<std::string>& files) {
  std::size_t bytes = 0;
  for (const std::string& file : files) {
    std::error_code failure;
    const auto size = std::filesystem::file_size(PathOf(file), failure);
    if (failure) return 0;
    bytes += size;
  }
  return bytes;
}

/// The folder of the program, where its templates are.
std::filesystem::path ProgramFolder() {
  std::error_code failure;
  return std::filesystem::read_symlink("/proc/self/exe", failure).parent_path();
}

std::string Joined(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) {
    text += (text.empty() ? "" : ", ") + (name == "-" ? "standard input" : name);
  }
  return text;
}

}  // namespace

CheckRun::CheckRun(CheckArguments arguments, const std::atomic<bool>& cancel)
    : arguments_(std::move(arguments)),
      cancel_(cancel),
      results_(PathOf(arguments_.output)),
      progress_(arguments_.showsProgress, SizeOf(arguments_.files)) {}

bool CheckRun::Tell(const std::string& name, const std::string& what) {
  progress_.End();
  std::fprintf(stderr, "%s: %s\n", name.c_str(), what.c_str());
  return false;
}

void CheckRun::TellNotes(const std::string& name, const std::vector<FileNote>& notes) {
  for (const auto& [line, text] : notes) Tell(name, "line " + std::to_string(line) + ": " + text);
}

bool CheckRun::OpenBalances() {
  if (arguments_.balances.empty()) return true;
  balances_ = std::make_unique<InputFile>(arguments_.balances, cancel_);
  if (balances_->Error()) return Tell(arguments_.balances, balances_->Error()->reason);
  days_ = std::make_unique<DayReader>(balances_->Source());
  return days_->Refusal().empty() || Tell(arguments_.balances, "line 1: " + days_->Refusal());
}

bool CheckRun::TakeHeader(const std::string& name, const PortfolioHeader& header) {
  if (!header.refusal.empty()) return Tell(name, "line 1: " + header.refusal);
  const std::string text = ResultHeader(header);
  if (!header_.empty()) {
    return text == header_ || Tell(name, "line 1: The header differs from that of the first file.");
  }
  header_ = text;
  return results_.Write(text);
}

bool CheckRun::Take(const CheckedBatch& batch) {
  summary_.Take(batch);
  progress_.Show(summary_.RowCount(), bytesBefore_ + batch.bytesRead);
  return results_.Write(batch.text);
}

bool CheckRun::CheckRows(const std::string& name, InputFile& input) {
  AccountReader reader(input.Source(), days_.get());
  if (!input.Error() && !TakeHeader(name, reader.Header())) return false;
  RunPortfolio(reader, arguments_.run, cancel_,
               [&](const CheckedBatch& batch) { return Take(batch); });
  bytesBefore_ += reader.BytesRead();
  if (!cancel_) TellNotes(name, reader.Notes());
  return !input.Error() || Tell(name, input.Error()->reason);
}

bool CheckRun::CheckFile(const std::string& name) {
  InputFile input(name, cancel_);
  if (input.Error()) return Tell(name, input.Error()->reason);
  return CheckRows(name, input);
}

bool CheckRun::WriteReport() {
  if (arguments_.report.empty()) return true;
  const ReportContent content =
      summary_.Content(Joined(arguments_.files), std::string("corvane-check ") + kProgramVersion,
                       FormatDate(Today()));
  const WrittenReport report =
      corvane::WriteReport(ProgramFolder() / kPortfolioReport.templateName,
                           std::filesystem::absolute(PathOf(arguments_.report)), content);
  for (const Refusal& message : report.messages) Tell(arguments_.report, message.text);
  return report.text.has_value();
}

bool CheckRun::Finish() {
  if (const auto error = results_.Finish()) return Tell(PathText(error->path), error->reason);
  const auto unused = days_ && !cancel_ ? days_->FirstUnused() : std::nullopt;
  if (unused) {
    Tell(arguments_.balances,
         "line " + std::to_string(*unused) + ": No statement asked for the days of this account.");
  }
  if (balances_ && balances_->Error()) return Tell(arguments_.balances, balances_->Error()->reason);
  return WriteReport();
}

void CheckRun::TellEnd() {
  progress_.End();
  std::fprintf(stderr, "%s%s, %s\n", cancel_ ? "Interrupted: " : "",
               CountText(summary_.RowCount(), "row").c_str(), CountsText(summary_.Total()).c_str());
}

ExitStatus CheckRun::Run() {
  if (!OpenBalances()) return ExitStatus::FileError;
  for (const std::string& file : arguments_.files) {
    if (cancel_ || CheckFile(file)) continue;
    if (results_.HasFailed()) Finish();
    return ExitStatus::FileError;
  }
  if (!Finish()) return ExitStatus::FileError;
  TellEnd();
  if (cancel_) return ExitStatus::Interrupted;
  if (summary_.Total().refused > 0) return ExitStatus::Refused;
  return summary_.Total().violations > 0 ? ExitStatus::Violation : ExitStatus::Ok;
}

}  // namespace corvane
