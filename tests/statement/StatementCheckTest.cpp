#include "statement/StatementCheck.h"

#include "CheckTable.h"
#include "statement/EntryChecks.h"
#include "statement/StatementContext.h"
#include "statement/StatementNotes.h"

namespace corvane {
namespace {

using enum BalanceColumn;

/// A person at the windows of a statement, without the windows. Days that no start dates begin on
/// 15 March 2026.
class Person {
 public:
  bool Put(const std::string& name, const std::string& text) {
    if (corvane::Put(choices_, name, text)) return true;
    if (corvane::Put(check_.entry, name, text)) return FollowChanges(check_), true;
    const std::map<std::string, std::function<std::string()>> acts = {
        {"Continue", [&] { return Continue(); }},
        {"Ledger", [&] { return Compute(Ledger, text); }},
        {"Collected", [&] { return Compute(Collected, text); }},
        {"Cancel", [&] { return Cancel(text); }},
        {"Calculate", [&] { return Said(CalculateStatement(check_)); }},
        {"Check", [&] { return Said(CheckEntries(check_)); }},
        {"Button", [&] { return Count(PeriodCaller::Button); }},
        {"Calendar", [&] { return Count(PeriodCaller::Calendar); }},
        {"DaysField", [&] { return Count(PeriodCaller::DaysField); }},
        {"Factor", [&] { return Said(FactorChanged(check_.entry)); }},
    };
    const auto act = acts.find(name);
    if (act == acts.end()) return false;
    answer_ = act->second();
    return true;
  }

  const std::string& Answer() const { return answer_; }

  std::string Shown(const std::string& name) const {
    const InterestDetail* detail = DetailOf(check_);
    if (name == "detail") return detail ? detail->daily.days.back().balance : "none";
    if (name == "start") return FormatDate(detail->daily.start);
    if (name == "note") return InterestNoteText(check_.entry);
    if (name == "Ledger") return FirstDay(Ledger);
    if (name == "Collected") return FirstDay(Collected);
    if (name == "factor") return FormatPlain(AccountOf(check_).factorDays);
    if (name == "result") return Result();
    if (name == "context") return ContextOf({}, check_);
    if (name == "next") return NextStepOfEntry(check_.entry);
    if (name == "notes") return ShownNotes();
    const std::string chosen = ShownBy(choices_, name);
    return chosen.starts_with("no control") ? ShownBy(check_.entry, name) : chosen;
  }

 private:
  /// Goes on to the period window.
  std::string Continue() {
    const CheckOutcome outcome = ContinueSetup(check_, choices_);
    if (!outcome.refusal) check_.entry = PresentEntry(check_.setup, check_.entry);
    FollowChanges(check_);
    return Said(outcome);
  }

  DailyBalances DaysOf(const StatementCheck& check, BalanceColumn column) const {
    return corvane::DaysOf(check, column, *ParseDate("03-15-2026"));
  }

  DailyBalances TypedDays(BalanceColumn column, const std::string& balance) const {
    DailyBalances daily = DaysOf(check_, column);
    for (std::size_t day = 0; day < daily.days.size(); ++day) TakeDay(daily, day, {balance, ""});
    return daily;
  }

  /// Types the balance into all days of a column.
  std::string Compute(BalanceColumn column, const std::string& balance) {
    const CheckOutcome outcome = StartCompute(check_, column);
    if (outcome.refusal) return Said(outcome);
    const DailyBalances daily = TypedDays(column, balance);
    const auto computed = ComputeAdb(daily);
    if (const auto* refusal = std::get_if<Refusal>(&computed)) return Said(*refusal);
    FinishCompute(check_, daily, std::get<ComputedDays>(computed));
    return Said(outcome);
  }

  /// Types it and closes the window by its frame.
  std::string Cancel(const std::string& balance) {
    const StatementCheck before = check_;
    const CheckOutcome outcome = StartCompute(check_, Ledger);
    check_ = CancelledCompute(before, TypedDays(Ledger, balance));
    return Said(outcome);
  }

  std::string Count(PeriodCaller caller) {
    const YearRule& year = check_.setup.year;
    const auto refusal = CountPeriod(year, check_.entry, caller);
    return Said(refusal ? refusal : DaysNotice(year, check_.entry));
  }

  /// What the daily window would open with.
  std::string FirstDay(BalanceColumn column) const {
    const DayEntry first = DaysOf(check_, column).days.at(0);
    return first.balance + " " + first.rate;
  }

  /// Interest, APY earned and verdict.
  std::string Result() const {
    if (!check_.result) return "none";
    const auto& [interest, apy, verdict] = *check_.result;
    return FormatPlain(interest) + " " + FormatPlain(apy) +
           (verdict == Verdict::Ok ? " OK" : " VIOLATION");
  }

  std::string ShownNotes() const {
    std::string text;
    for (const auto& [kind, figures, count, all] : NotesOf(check_)) {
      text += kind == NoteKind::BothMinimums ? "minimums" : "cents";
      for (const NoteFigure& figure : figures) {
        text += " " + FormatFixed2(figure.other) + "/" + FormatFixed2(figure.computed);
        if (figure.turnsTo == Verdict::Ok) text += " OK";
      }
    }
    return text.empty() ? "none" : text;
  }

  StatementCheck check_;
  StatementSetup choices_;
  std::string answer_;
};

TEST(StatementCheck, AgreesWithItsTable) {
  Person person;
  RunChecks("statement/StatementChecks.txt", TableOf(person));
}

}  // namespace
}  // namespace corvane
