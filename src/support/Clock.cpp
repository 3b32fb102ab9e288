#include "support/Clock.h"

#include <ctime>

namespace corvane {

namespace {

std::optional<Date>& ChosenDate() {
  static std::optional<Date> date;
  return date;
}

}  // namespace

Date Today() {
  if (ChosenDate()) return *ChosenDate();
  const std::time_t now = std::time(nullptr);
  // The standard library of the oldest supported compiler has no time zones of its own.
  const std::tm local = *std::localtime(&now);  // NOLINT(concurrency-mt-unsafe): one thread asks
  return Date{std::chrono::year{local.tm_year + 1900},
              std::chrono::month{static_cast<unsigned>(local.tm_mon + 1)},
              std::chrono::day{static_cast<unsigned>(local.tm_mday)}};
}

void SetToday(std::optional<Date> date) {
  ChosenDate() = date;
}

}  // namespace corvane
