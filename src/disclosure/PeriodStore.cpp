#include "disclosure/PeriodStore.h"

#include "account/SessionRecord.h"
#include "formulas/DailyRateFactor.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

DateSerial StoredDate(const std::string& text) {
  const auto date = ParseDate(text);
  return date ? SerialOf(*date) : 0;
}

std::string DateText(DateSerial serial) {
  const auto date = DateOf(serial);
  return date ? FormatDate(*date) : std::string(kEmptyDateMask);
}

using Format = std::string (*)(double);

std::string EmptyForZero(double value, Format format) {
  return value == 0 ? "" : format(value);
}

}  // namespace

void StoreEntry(SessionRecord& session, int index, const DisclosureEntry& entry) {
  session.PerPeriodNo.Set(index, static_cast<std::int16_t>(index));
  session.PerBeginMonth.Set(index, WholeNumber(entry.txtBeginMonth.text).value_or(0));
  session.PerBeginYear.Set(index, WholeNumber(entry.txtBeginYear.text).value_or(0));
  session.PerBalance.Set(index, NumericValue(entry.txtBal.text));
  session.PerRate.Set(index, NumericValue(entry.txtIntRateA.text));
  session.PerDiscApy.Set(index, NumericValue(entry.txtDiscAPY.text));
  session.PerTerm.Set(index, NumericValue(entry.txtTerm.text));
  session.PerWdrwlPeriods.Set(index, NumericValue(entry.txtWdrwlPeriods.text));
  session.PerBtwnReqIntWdrwl.Set(index, NumericValue(entry.txtBtwnReqIntWdrwl.text));
  session.PerStartDate.Set(index, StoredDate(entry.tStartDate.text));
  session.PerEndDate.Set(index, StoredDate(entry.tEndDate.text));
  session.PerDailyRateFactor.Set(index, entry.txtDailyRateFactor.text);
}

DisclosureEntry StoredEntry(const SessionRecord& session, int index) {
  DisclosureEntry entry;
  entry.txtBeginMonth.text = EmptyForZero(session.PerBeginMonth.At(index), FormatTwoDigits);
  entry.txtBeginYear.text = EmptyForZero(session.PerBeginYear.At(index), FormatTwoDigits);
  entry.txtBal.text = EmptyForZero(session.PerBalance.At(index), FormatFixed2);
  entry.txtIntRateA.text = EmptyForZero(session.PerRate.At(index), FormatRate);
  entry.txtDiscAPY.text = EmptyForZero(session.PerDiscApy.At(index), FormatFixed2);
  entry.txtTerm.text = EmptyForZero(session.PerTerm.At(index), FormatPlain);
  entry.txtWdrwlPeriods.text = EmptyForZero(session.PerWdrwlPeriods.At(index), FormatPlain);
  entry.txtBtwnReqIntWdrwl.text = EmptyForZero(session.PerBtwnReqIntWdrwl.At(index), FormatPlain);
  entry.tStartDate.text = DateText(session.PerStartDate.At(index));
  entry.tEndDate.text = DateText(session.PerEndDate.At(index));
  entry.txtDailyRateFactor.text = session.PerDailyRateFactor.At(index);
  return entry;
}

PeriodFigures UseStoredPeriod(SessionRecord& session, int index) {
  const PeriodFigures figures = {session.PerDiscApy.At(index), session.PerRate.At(index),
                                 session.PerBalance.At(index), session.PerTerm.At(index),
                                 session.PerDailyRateFactor.At(index)};
  session.DisclosedApy = figures.disclosedApy;
  session.WdrwlPeriods = session.PerWdrwlPeriods.At(index);
  session.BtwnReqIntWdrwl = session.PerBtwnReqIntWdrwl.At(index);
  session.BeginMonth = session.PerBeginMonth.At(index);
  session.BeginYear = session.PerBeginYear.At(index);
  session.DailyRateFactor = figures.factor;
  session.DaysInYear = FactorDenominator(figures.factor).value_or(session.DaysInYear);
  session.EnteredTerm = figures.term;
  session.EnteredBalance = figures.balance;
  return figures;
}

}  // namespace corvane
