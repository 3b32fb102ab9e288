#pragma once

#include <filesystem>

#include "windows/portfolio/ResultsModel.h"

namespace corvane {

class Form;

/// Saves what a table shows of a file, or the whole of it, as a file of its own.
class ResultsSaving {
 public:
  explicit ResultsSaving(Form& window) : window_(window) {}

  /// Asks which accounts and where to, then writes them beside the window, which tells the outcome.
  /// `accounts` is the file that was checked, `folder` the one that is proposed.
  void Ask(ResultsModel& model, const std::filesystem::path& accounts,
           const std::filesystem::path& folder);

 private:
  void Write(const std::filesystem::path& file, const CheckedParts& parts, const RowQuery& query);

  Form& window_;
  BackgroundTask task_;
};

}  // namespace corvane
