#pragma once

#include <filesystem>
#include <memory>

#include "windows/frame/Form.h"
#include "windows/portfolio/FileRun.h"
#include "windows/portfolio/ResultsModel.h"
#include "windows/portfolio/ResultsSaving.h"

namespace Ui {
class PortfolioWindow;
}

namespace corvane {

class ContextLine;
class TextLine;

/// A whole file of accounts: its results as a table that fills while the file is read, from which
/// an account opens as a check. The table stays until another file is chosen.
class PortfolioWindow : public Form {
  Q_OBJECT

 public:
  explicit PortfolioWindow(WindowRegistry& registry);
  ~PortfolioWindow() override;

  void Form_Load() override;
  void Form_Activate() override;
  bool StaysWhenLeft() const override { return true; }

  bool HasFile() const { return !files_.accounts.empty(); }
  /// Asks for a file of accounts and checks it.
  void ChooseFile();
  /// Checks files that were chosen together; daily balances alone are those of the file that the
  /// table shows.
  void CheckFiles(const std::vector<std::filesystem::path>& files);

  const ResultsModel& Results() const { return model_; }
  bool IsReading() const { return run_.IsRunning(); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BindTable();
  void Start();
  void ChooseBalances();
  void AskForBalances();
  void Take(const CheckedParts& parts, const FileCheckProgress& progress);
  void End(const FileCheckEnd& end);
  void ShowState();
  void ShowFound();
  void FindShown();
  const CheckedRow* CurrentRow();

  void cmdOpen_Click();

  std::unique_ptr<Ui::PortfolioWindow> ui_;
  ContextLine* file_ = nullptr;
  TextLine* counts_ = nullptr;
  PortfolioFiles files_;
  bool lacksDays_ = false;  ///< statements came that need daily balances
  bool wasAsked_ = false;   ///< for them
  FileCheckProgress progress_;
  FileCheckEnd end_;
  const CheckedRow* current_ = nullptr;  ///< that is marked
  ResultsModel model_;
  FileRun run_;
  ResultsSaving saving_{*this};
};

}  // namespace corvane
