#include <cmath>

#include "Fuzz.h"
#include "account/DailyRateFactor.h"
#include "account/DateEntry.h"
#include "account/NumericEntry.h"
#include "support/Dates.h"
#include "support/NumberText.h"

using namespace corvane;

namespace {

void ReadNumber(const std::string& text) {
  const double value = NumericValue(text);
  DEMAND(std::isfinite(value));
  DEMAND(IsNumeric(text) || value == 0);
  const std::string rewritten = RewriteFixed2(text);
  DEMAND(RewriteFixed2(rewritten) == rewritten);
  DEMAND(IsNumeric(text) == IsNumeric(rewritten));
  // Rounding takes what binary digits leave of a half for a half.
  if (const auto whole = WholeNumber(text)) DEMAND(std::abs(*whole - value) < 0.500001);
  if (IsNumeric(text)) DEMAND(NumericValue(FormatPlain(value)) == value);
}

void ReadDate(const std::string& text) {
  if (const auto date = ParseDate(text)) {
    DEMAND(date->ok());
    DEMAND(ParseDate(FormatDate(*date)) == date);
    DEMAND(DaysBetween(*date, AddDays(*date, 96)) == 96);
  }
}

void ReadPasted(const std::string& text) {
  for (const char* kind : {"bal", "int", "userint", "apy"}) {
    const auto number = CleanPastedNumber(text, kind);
    if (number) DEMAND(IsNumeric(*number) && CleanPastedNumber(*number, kind) == number);
  }
  const auto date = ReadPastedDate(text);
  if (date) DEMAND(ReadPastedDate(FormatDate(*date)) == date);
}

void ReadFactor(const std::string& text) {
  if (const auto days = FactorDays(text)) DEMAND(*days >= 1 && *days == std::floor(*days));
}

void LimitTyped(const std::u16string& text, int decimals) {
  const std::u16string repaired = FixMinusSign(text);
  DEMAND(repaired.size() <= text.size());
  const LimitedText limited = LimitDecimals(repaired, decimals, "bal");
  DEMAND(limited.message.has_value() == (limited.text != repaired));
  DEMAND(!LimitDecimals(limited.text, decimals, "bal").message);
}

}  // namespace

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  ReadNumber(text);
  ReadDate(text);
  ReadFactor(text);
  ReadPasted(text);
  LimitTyped(std::u16string(text.begin(), text.end()), static_cast<int>(size % 5));
  return 0;
}
