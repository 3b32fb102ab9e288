#include "statement/DayFilling.h"

#include "CheckTable.h"
#include "statement/DayHistory.h"

namespace corvane {
namespace {

std::string Unescaped(std::string text) {
  for (const auto& [sign, control] : {std::pair{"\\n", "\n"}, {"\\t", "\t"}, {"\\r", "\r"}}) {
    for (std::size_t at; (at = text.find(sign)) != text.npos;) text.replace(at, 2, control);
  }
  return text;
}

/// A person at the days of 15 March 2026 on, without the window. Days count from 1.
class Person {
 public:
  bool Put(const std::string& name, const std::string& text) {
    const auto day = [&text] { return std::stoul(text) - 1; };
    const std::map<std::string, std::function<void()>> acts = {
        {"regular", [&] { Begin(AccountKind::Regular, day() + 1); }},
        {"stepped", [&] { Begin(AccountKind::Stepped, day() + 1); }},
        {"balance", [&] { place_ = {day()}; }},
        {"rate",
         [&] {
           place_ = {day(), true};
         }},
        {"paste", [&] { Take(PasteDays(daily_, place_, Unescaped(text))); }},
        {"load", [&] { Take(LoadDays(daily_, Unescaped(text))); }},
        {"before", [&] { Take(CopyDayBefore(daily_, day())); }},
        {"toEnd", [&] { Take(CopyToEnd(daily_, day())); }},
        {"clear", [&] { Take(ClearDays(daily_)); }},
        {"undo", [&] { daily_ = TakeBack(history_, daily_); }},
    };
    const auto act = acts.find(name);
    if (act != acts.end()) act->second();
    return act != acts.end();
  }

  const std::string& Answer() const { return answer_; }

  std::string Shown(const std::string& name) const {
    if (name == "foot") return SummaryText(daily_);
    if (name == "told") return told_;
    std::string texts;
    for (const DayEntry& day : daily_.days) {
      texts += (name == "rates" ? day.rate : day.balance) + ';';
    }
    return texts.substr(0, texts.size() - 1);
  }

 private:
  void Begin(AccountKind kind, std::size_t days) {
    daily_ = {.account = {.kind = kind, .rate = 3.65, .tiers = {}},
              .start = *ParseDate("03-15-2026"),
              .days = std::vector<DayEntry>(days)};
  }

  void Take(const std::variant<DailyBalances, Refusal>& days) {
    const auto* refusal = std::get_if<Refusal>(&days);
    answer_ = Said(refusal ? std::optional(*refusal) : std::nullopt);
    if (refusal) return;
    Remember(history_, daily_);
    told_ = ChangeText(daily_, std::get<DailyBalances>(days));
    daily_ = std::get<DailyBalances>(days);
  }

  DailyBalances daily_;
  DayHistory history_;
  DayPlace place_;
  std::string answer_;
  std::string told_;
};

TEST(DayFilling, AgreesWithItsTable) {
  Person person;
  RunChecks("statement/DayChecks.txt", TableOf(person));
}

}  // namespace
}  // namespace corvane
