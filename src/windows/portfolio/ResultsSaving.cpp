#include "windows/portfolio/ResultsSaving.h"

#include "platform/MessageBox.h"
#include "platform/SaveDialog.h"
#include "portfolio/FileCheck.h"
#include "support/Paths.h"
#include "windows/frame/Form.h"

namespace corvane {

namespace {

constexpr const char* kTitle = "Save Results";

QString Text(const std::filesystem::path& path) {
  return QString::fromStdString(PathText(path));
}

}  // namespace

void ResultsSaving::Ask(ResultsModel& model, const std::filesystem::path& accounts,
                        const std::filesystem::path& folder) {
  model.Settle();
  RowQuery query = model.Query();
  const QString shown = "Only some rows are shown. Save only the accounts that are shown?";
  if (!query.ShowsAll() && !AskYesNo(&window_, shown, kTitle)) query = {};
  const QString name = Text(accounts.stem()) + "-results.csv";
  const auto chosen =
      AskSavePath(&window_, {kTitle, Text(folder), name, "Tables (*.csv);;All files (*)"});
  if (chosen) Write(PathOf(chosen->toStdString()), model.Parts(), query);
}

void ResultsSaving::Write(const std::filesystem::path& file, const CheckedParts& parts,
                          const RowQuery& query) {
  window_.ShowHint("Saving " + PathText(file));
  task_.Start([this, file, query, parts](const auto& cancel) {
    const auto error = SaveResults(file, parts, query, cancel);
    return BackgroundTask::Done([this, file, error] {
      if (error) return window_.Tell(FileNotWritten(*error));
      window_.ShowHint("Saved as " + PathText(file));
    });
  });
}

}  // namespace corvane
