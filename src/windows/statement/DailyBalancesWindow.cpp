#include "windows/statement/DailyBalancesWindow.h"

#include <QtWidgets>

#include "platform/MessageBox.h"
#include "platform/OpenDialog.h"
#include "platform/WorkArea.h"
#include "statement/DayFilling.h"
#include "statement/DayNotice.h"
#include "statement/DayTable.h"
#include "statement/StatementContext.h"
#include "support/Paths.h"
#include "support/ProgramTitle.h"
#include "support/WholeFile.h"
#include "ui_DailyBalancesWindow.h"
#include "windows/frame/ContextLine.h"
#include "windows/frame/PageLayout.h"
#include "windows/frame/WindowRegistry.h"
#include "windows/statement/DayGrid.h"

namespace corvane {

static constexpr int kHelpContext = 10;

DailyBalancesWindow::DailyBalancesWindow(WindowRegistry& registry)
    : Form(registry, Role::Secondary), ui_(std::make_unique<Ui::DailyBalancesWindow>()) {
  ui_->setupUi(this);
  setWindowFlag(Qt::Dialog);
  NameArrayElements();
  grid_ = std::make_unique<DayGrid>(*ui_->fraDays, *ui_->days, *ui_->cmdPrint);
  connect(grid_.get(), &DayGrid::GoesTo, this, &DailyBalancesWindow::GoTo);
  connect(grid_.get(), &DayGrid::TakesBack, this, &DailyBalancesWindow::mnuUndo_Click);
  BindFields();
  BindCommands();
  EnterPresses({ui_->cmdNext, ui_->cmdContinue});
  BindCommonMenus(kHelpContext);
}

DailyBalancesWindow::~DailyBalancesWindow() = default;

void DailyBalancesWindow::BindFields() {
  for (const auto& [label, balance, rate] : grid_->Rows()) {
    for (const auto& [field, limit] :
         {std::pair(balance, kDayBalanceDecimals), std::pair(rate, kDayRateDecimals)}) {
      BindNumeric(field, {.repairMinus = true, .decimals = limit.decimals, .kind = limit.kind});
    }
    for (QLineEdit* field : {balance, rate}) {
      SelectTextOnFocus(field);
      OnLostFocus(field, [this, field](const QString&) {
        if (const auto place = grid_->PlaceOf(field)) Field_LostFocus(*place);
      });
    }
  }
  // Where a page does not fit in its full width, large letters take what long balances would. It
  // comes last: a rule of a field asks for a width too.
  grid_->FitFields(PageSize(*this).width() <= WorkArea(*this).width());
}

void DailyBalancesWindow::BindCommands() {
  OnClick(ui_->cmdPrevious, [this] { Turn(-1); });
  OnClick(ui_->cmdNext, [this] { Turn(1); });
  OnClick(ui_->cmdContinue, [this] { cmdContinue_Click(); });
  OnClick(ui_->cmdClear, [this] {
    Fill(ClearDays(grid_->Days()));
    GoToPage(1);
  });
  OnClick(ui_->cmdPrint, [this] { cmdPrint_Click(); });
  OnMenu(ui_->mnuUndo, [this] { mnuUndo_Click(); });
  OnMenu(ui_->mnuPaste, [this] {
    PasteInto(grid_->FieldAt(grid_->Place()), QGuiApplication::clipboard()->text());
  });
  OnMenu(ui_->mnuCopyBefore, [this] { Fill(CopyDayBefore(grid_->Days(), grid_->Place().day)); });
  OnMenu(ui_->mnuCopyToEnd, [this] { Fill(CopyToEnd(grid_->Days(), grid_->Place().day)); });
  OnMenu(ui_->mnuLoad, [this] { mnuLoad_Click(); });
}

void DailyBalancesWindow::Form_Load() {
  account_ = AddContextLine("lblContext");
}

bool DailyBalancesWindow::Form_QueryUnload() {
  return AskYesNo(
      this, "Any data you have entered will be lost. Are you sure you want to close this window?",
      kProgramTitle, QMessageBox::No);
}

void DailyBalancesWindow::Edit(DailyBalances& daily, std::optional<ComputedDays>& computed) {
  grid_->Edit(daily);
  computed_ = &computed;
  account_->ShowContext(ContextOf(session().header, session().statement));
  setWindowTitle(windowTitle() + " - " + ColumnName(daily.column));
  ui_->lblMinADB->setText(QString::fromStdString(MinimumAdbText(daily.account)));
  ui_->lblMinBal->setText(QString::fromStdString(MinimumDailyBalanceText(daily.account)));
  GoToPage(1);
}

void DailyBalancesWindow::GoTo(const DayPlace& place) {
  if (place.day >= grid_->Days().days.size()) return FocusField(ui_->cmdContinue);
  const int page = PageOf(place.day);
  // As by the button, so that the page is left as its fields demand.
  if (page > grid_->Page()) ui_->cmdNext->click();
  if (page < grid_->Page()) ui_->cmdPrevious->click();
  if (page == grid_->Page()) FocusField(grid_->FieldAt(place));
}

void DailyBalancesWindow::PasteInto(QLineEdit* field, const QString& text) {
  if (!IsTable(text.toStdString())) return Form::PasteInto(field, text);
  FocusField(field);
  Fill(PasteDays(grid_->Days(), grid_->Place(), text.toStdString()));
}

void DailyBalancesWindow::mnuUndo_Click() {
  // A field that shows other days must not take them for what was typed.
  FocusField(ui_->cmdContinue);
  const auto changed = grid_->TakeBack();
  const std::size_t day = changed.value_or(grid_->Place().day);
  ShowPage(PageOf(day));
  FocusField(grid_->FieldAt({day}));
  if (changed) ShowHint("Taken back.");
}

void DailyBalancesWindow::mnuLoad_Click() {
  const auto path = AskOpenPath(this, "Load Days from File", "Tables (*.csv *.txt);;All files (*)");
  if (!path) return;
  const auto text = ReadWholeFile(PathOf(path->toStdString()));
  if (const auto* error = std::get_if<FileError>(&text)) {
    return Tell({"The file cannot be read: " + PathText(error->path) + "\n" + error->reason,
                 FieldAt(grid_->Place())});
  }
  Fill(LoadDays(grid_->Days(), std::get<std::string>(text)));
}

void DailyBalancesWindow::Fill(const std::variant<DailyBalances, Refusal>& days) {
  if (const auto* refusal = std::get_if<Refusal>(&days)) return Tell(*refusal);
  const std::string change = ChangeText(grid_->Days(), std::get<DailyBalances>(days));
  grid_->Take(std::get<DailyBalances>(days));
  ShowPage(grid_->Page());
  FocusField(grid_->FieldAt(grid_->Place()));
  if (!change.empty()) ShowHint(change);
}

void DailyBalancesWindow::Turn(int pages) {
  if (TakePage()) GoToPage(grid_->Page() + pages);
}

void DailyBalancesWindow::GoToPage(int page) {
  ShowPage(page);
  FocusField(grid_->Rows().front().balance);
}

void DailyBalancesWindow::ShowPage(int page) {
  grid_->ShowPage(page);
  ui_->cmdPrevious->setEnabled(page > 1);
  ui_->cmdNext->setEnabled(HasNextPage(page, grid_->Days().days.size()));
  ShowSummary();
}

void DailyBalancesWindow::ShowSummary() {
  ui_->lblSummary->SetLine(QString::fromStdString(SummaryText(grid_->Days())));
}

bool DailyBalancesWindow::TakePage() {
  grid_->TakePage();
  const auto refusal = CheckPage(grid_->Days(), grid_->Page());
  if (refusal) Tell(*refusal);
  return !refusal;
}

void DailyBalancesWindow::Field_LostFocus(const DayPlace& place) {
  if (!grid_->TakeField(place)) return;
  ShowSummary();
  if (const auto notice = DayNotice(grid_->Days(), place.day)) ShowHint(*notice);
}

bool DailyBalancesWindow::AcceptsEmptyDays() {
  const QString question = QString::fromStdString(EmptyDaysQuestion(grid_->Days()).value_or(""));
  return question.isEmpty() || AskYesNo(this, question, kProgramTitle, QMessageBox::No);
}

void DailyBalancesWindow::cmdContinue_Click() {
  if (!TakePage() || !AcceptsEmptyDays()) return;
  FillRates(grid_->Days());
  auto computed = ComputeAdb(grid_->Days());
  if (const auto* refusal = std::get_if<Refusal>(&computed)) {
    ShowPage(grid_->Page());
    return Tell(*refusal);
  }
  *computed_ = std::get<ComputedDays>(std::move(computed));
  windows().Close(*this);
}

void DailyBalancesWindow::cmdPrint_Click() {
  if (!TakePage()) return;
  FillRates(grid_->Days());
  ShowPage(grid_->Page());
  routes().ShowInterestReport(grid_->Days());
}

}  // namespace corvane
