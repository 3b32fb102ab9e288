#pragma once

#include <atomic>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "portfolio/InputFile.h"
#include "portfolio/PortfolioReport.h"
#include "portfolio/PortfolioRun.h"
#include "portfolio/ProgressLine.h"
#include "portfolio/ResultFile.h"

namespace corvane {

/// What the command line asks for.
struct CheckArguments {
  std::vector<std::string> files;
  std::string output;    ///< empty for standard output
  std::string report;    ///< empty for none
  std::string balances;  ///< empty for none
  RunOptions run;
  bool showsProgress = false;
};

/// What the program answers to the one who started it; the highest that applies.
enum class ExitStatus { Ok = 0, Violation = 1, Refused = 2, FileError = 3, Interrupted = 130 };

/// A run of the program: several files are checked as one, and have to have the same header.
class CheckRun {
 public:
  CheckRun(CheckArguments arguments, const std::atomic<bool>& cancel);

  ExitStatus Run();

 private:
  bool OpenBalances();
  bool CheckFile(const std::string& name);
  bool CheckRows(const std::string& name, InputFile& input);
  bool TakeHeader(const std::string& name, const PortfolioHeader& header);
  bool Take(const CheckedBatch& batch);
  void TellNotes(const std::string& name, const std::vector<FileNote>& notes);
  bool Tell(const std::string& name, const std::string& what);
  bool Finish();
  bool WriteReport();
  void TellEnd();

  CheckArguments arguments_;
  const std::atomic<bool>& cancel_;
  ResultFile results_;
  ProgressLine progress_;
  std::unique_ptr<InputFile> balances_;
  std::unique_ptr<DayReader> days_;
  PortfolioSummary summary_;
  std::string header_;
  std::size_t bytesBefore_ = 0;
};

}  // namespace corvane
