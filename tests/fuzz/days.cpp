#include "Fuzz.h"
#include "statement/DayFilling.h"

using namespace corvane;

namespace {

void DemandDays(const std::variant<DailyBalances, Refusal>& filled, const DailyBalances& before) {
  if (const auto* refusal = std::get_if<Refusal>(&filled)) return DEMAND(!refusal->text.empty());
  const auto& days = std::get<DailyBalances>(filled).days;
  DEMAND(days.size() == before.days.size());
  for (const DayEntry& day : days) DEMAND(day.balance.empty() || IsNumeric(day.balance));
}

}  // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  FuzzedDataProvider input(data, size);
  DailyBalances daily;
  daily.account.kind = input.ConsumeBool() ? AccountKind::Stepped : AccountKind::Regular;
  daily.account.rate = 5;
  daily.start = Date{std::chrono::year(2024), std::chrono::month(2), std::chrono::day(20)};
  daily.days.resize(input.ConsumeIntegralInRange<std::size_t>(1, 96));
  DayPlace place;
  place.day = input.ConsumeIntegralInRange<std::size_t>(0, daily.days.size() - 1);
  place.isRate = input.ConsumeBool();
  const std::string text = input.ConsumeRemainingBytesAsString();
  DemandDays(PasteDays(daily, place, text), daily);
  DemandDays(LoadDays(daily, text), daily);
  return 0;
}
