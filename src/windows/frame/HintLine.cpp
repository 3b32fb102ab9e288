#include "windows/frame/HintLine.h"

namespace corvane {

namespace {

constexpr std::pair<const char*, const char*> kNextSteps[] = {
    {"frmSplash", "Continue opens the main menu."},
    {"frmMain", "Choose what to verify: a disclosure or advertisement, or a periodic statement."},
    {"frmAbout", "OK closes this window."},
    {"frmHelp", "Choose a topic, or type words and press Search."},
    {"frmCalendar", "Enter chooses the day, Escape closes."},
    {"frmAcctAdvertAPY", "Choose how the account earns interest. Continue goes on to its figures."},
    {"frmStatementUseandSelect",
     "Choose how the account earns interest. Continue goes on to the period."},
    {"frmAcctTieredAB",
     "Choose the number of tiers, then type each tier's rate and upper bound. Continue goes on."},
    {"frmInterestbyDay",
     "Type the balance of every day. Compute ADB hands average and interest back."},
    {"frmPortfolio",
     "Enter opens the account of the marked row. A heading or the menu View sorts the rows."},
    {"frmPortfolioReport", "Print or save the report. Back returns to the table."},
    {"frmInterestReport", "Print or save the days. Back returns to the daily balances."},
};

}  // namespace

HintLine::HintLine(QWidget* parent) : TextLine(parent, "lblHint") {}

void HintLine::SetNextStep(const QString& text) {
  nextStep_ = text;
  ShowLine();
}

void HintLine::Tell(const QString& text) {
  told_ = text;
  ShowLine();
}

void HintLine::ShowLine() {
  SetLine(told_.isEmpty() ? nextStep_ : told_);
}

QString NextStepOf(const QString& window) {
  for (const auto& [name, text] : kNextSteps) {
    if (window == name) return text;
  }
  return {};
}

}  // namespace corvane
