#include "windows/portfolio/PortfolioWindow.h"

#include <QtWidgets>

#include "platform/MessageBox.h"
#include "platform/OpenDialog.h"
#include "portfolio/OpenedCheck.h"
#include "portfolio/ResultRows.h"
#include "reports/HtmlText.h"
#include "support/Paths.h"
#include "ui_PortfolioWindow.h"
#include "windows/frame/ContextLine.h"
#include "windows/frame/FieldText.h"
#include "windows/frame/WindowRegistry.h"

namespace corvane {

namespace {

constexpr int kHelpContext = 12;
constexpr const char* kTables = "Tables (*.csv *.txt);;All files (*)";

}  // namespace

PortfolioWindow::PortfolioWindow(WindowRegistry& registry)
    : Form(registry, Role::Main), ui_(std::make_unique<Ui::PortfolioWindow>()) {
  ui_->setupUi(this);
  counts_ = new TextLine(this, "lblCounts");
  ui_->boxProgress->insertWidget(0, counts_, 1);
  ui_->cboVerdict->addItems(
      {"All rows", VerdictText(Verdict::Ok), VerdictText(Verdict::Violation), kRefused});
  BindTable();
  connect(&run_, &FileRun::Arrived, this, &PortfolioWindow::Take);
  connect(&run_, &FileRun::Ended, this, &PortfolioWindow::End);
  connect(this, &Form::Unloaded, &run_, &FileRun::Stop);
  OnClick(ui_->cmdCancel, [this] { run_.Cancel(); });
  OnClick(ui_->cmdFile, [this] { ChooseFile(); });
  OnClick(ui_->cmdOpen, [this] { cmdOpen_Click(); });
  OnClick(ui_->cmdReport, [this] { routes().ShowPortfolioReport(ReportOf(files_, end_)); });
  OnClick(ui_->cmdSave, [this] { saving_.Ask(model_, files_.accounts, session().dataFolder); });
  OnClick(ui_->cmdMain, [this] { routes().ShowMainMenu(); });
  OnMenu(ui_->mnuCheckFile, [this] { ui_->cmdFile->click(); });
  OnMenu(ui_->mnuBalances, [this] { ChooseBalances(); });
  OnMenu(ui_->mnuSaveResults, [this] { ui_->cmdSave->click(); });
  OnMenu(ui_->mnuReport, [this] { ui_->cmdReport->click(); });
  OnMenu(ui_->mnuMain, [this] { ui_->cmdMain->click(); });
  ui_->mnuCheckFile->setShortcut(QKeySequence::Open);
  ui_->mnuSaveResults->setShortcut(QKeySequence::Save);
  EnterPresses({ui_->cmdOpen, ui_->cmdFile});
  BindCommonMenus(kHelpContext);
  OnDrop([this](const auto& files) { CheckFiles(files); });
}

PortfolioWindow::~PortfolioWindow() = default;

void PortfolioWindow::BindTable() {
  ui_->tblResults->setModel(&model_);
  ui_->tblResults->FillSortMenu(*ui_->mnuView);
  connect(ui_->tblResults->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& row) {
            current_ = row.isValid() ? &model_.RowAt(row.row()) : nullptr;
          });
  connect(ui_->tblResults->horizontalHeader(), &QHeaderView::sortIndicatorChanged, this,
          [this] { FindShown(); });
  connect(ui_->tblResults, &QTableView::doubleClicked, ui_->cmdOpen, &QPushButton::click);
  connect(ui_->txtFilter, &QLineEdit::textChanged, this, [this] { FindShown(); });
  connect(ui_->cboVerdict, &QComboBox::currentIndexChanged, this, [this] { FindShown(); });
  connect(&model_, &ResultsModel::Found, this, [this] { ShowFound(); });
}

void PortfolioWindow::Form_Load() {
  file_ = AddContextLine("lblFile");
  ui_->tblResults->FitColumns();
  ShowState();
}

void PortfolioWindow::Form_Activate() {
  FocusField(ui_->tblResults);
  AskForBalances();
}

void PortfolioWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && run_.IsRunning()) return run_.Cancel();
  Form::keyPressEvent(event);
}

void PortfolioWindow::ChooseFile() {
  if (const auto path = AskOpenPath(this, "Check a File", kTables)) {
    CheckFiles({PathOf(path->toStdString())});
  }
}

void PortfolioWindow::ChooseBalances() {
  const auto path = AskOpenPath(this, "Daily Balances of the Statements", kTables);
  if (!path) return;
  files_.balances = PathOf(path->toStdString());
  if (HasFile()) Start();
}

void PortfolioWindow::CheckFiles(const std::vector<std::filesystem::path>& files) {
  const PortfolioFiles told = TellApart(files);
  if (!told.accounts.empty()) files_ = told;
  if (!told.balances.empty()) files_.balances = told.balances;
  if (!HasFile()) return ShowHint("Now choose the file of the statements.");
  files_ = WithBalancesBeside(files_);
  Start();
}

void PortfolioWindow::Start() {
  current_ = nullptr;
  model_.Clear();
  progress_ = {};
  end_ = {};
  lacksDays_ = wasAsked_ = false;
  file_->ShowContext(FilesText(files_));
  run_.Start(files_);
  FocusField(ui_->tblResults);
  ShowState();
}

void PortfolioWindow::Take(const CheckedParts& parts, const FileCheckProgress& progress) {
  progress_ = progress;
  model_.Append(parts);
  if (!ui_->tblResults->currentIndex().isValid()) ui_->tblResults->selectRow(0);
  for (const auto& part : parts) {
    lacksDays_ |= std::ranges::any_of(part->Accounts(), &CheckedAccount::lacksDays);
  }
  ShowState();
  // Asked once what came is taken: another file may be read then.
  if (lacksDays_ && !wasAsked_) QTimer::singleShot(0, this, [this] { AskForBalances(); });
}

void PortfolioWindow::AskForBalances() {
  const bool needs = lacksDays_ && !wasAsked_ && files_.balances.empty();
  if (!needs || !windows().IsInFront(*this)) return;
  wasAsked_ = true;
  const QString question =
      "The file has statements without an average balance.\n"
      "Do you want to choose the file of their daily balances?";
  if (AskYesNo(this, question, windowTitle())) ChooseBalances();
}

void PortfolioWindow::End(const FileCheckEnd& end) {
  end_ = end;
  ShowState();
  if (end.refusal) return Tell(*end.refusal);
  if (end.wasCancelled) return ShowHint("Cancelled: the file was not read to its end.");
  if (!end.notes.empty()) ShowHint(end.notes);
}

void PortfolioWindow::ShowState() {
  const bool isRunning = run_.IsRunning();
  const bool hasRows = model_.RowsRead() > 0;
  ui_->prgRun->setValue(static_cast<int>(1000 * progress_.done));
  ui_->cmdCancel->setEnabled(isRunning);
  for (auto* button : {ui_->cmdReport, ui_->cmdSave}) button->setEnabled(hasRows && !isRunning);
  ui_->mnuReport->setEnabled(hasRows && !isRunning);
  ui_->mnuSaveResults->setEnabled(hasRows && !isRunning);
  ui_->cmdOpen->setEnabled(hasRows);
  const auto shown = static_cast<std::size_t>(model_.rowCount());
  counts_->SetLine(QString::fromStdString(CountsText(progress_.counts, shown, model_.RowsRead())));
}

void PortfolioWindow::FindShown() {
  RowQuery query = ui_->tblResults->Order();
  query.text = TextOf(ui_->txtFilter);
  if (ui_->cboVerdict->currentIndex() > 0) {
    query.verdict = ui_->cboVerdict->currentText().toStdString();
  }
  model_.Find(query);
}

void PortfolioWindow::ShowFound() {
  ui_->tblResults->selectRow(std::max(0, model_.PlaceOf(current_)));
  ShowState();
}

const CheckedRow* PortfolioWindow::CurrentRow() {
  // What was typed may still be looked for: the account below another one must not open.
  model_.Settle();
  const QModelIndex current = ui_->tblResults->currentIndex();
  return current.isValid() ? &model_.RowAt(current.row()) : nullptr;
}

void PortfolioWindow::cmdOpen_Click() {
  const CheckedRow* row = CurrentRow();
  if (!row) return;
  if (row->account->isDamaged) {
    return ShowHint("A damaged row cannot be opened. " + std::string(row->message));
  }
  routes().OpenCheck(OpenAccount(model_.PartOf(*row), *row->account));
}

}  // namespace corvane
