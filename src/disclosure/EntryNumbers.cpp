#include "disclosure/EntryNumbers.h"

#include "account/DailyRateFactor.h"

namespace corvane {

EntryNumbers::EntryNumbers(const DisclosureEntry& entry)
    : periodNumber(entry.txtTierPerNum.Number()),
      beginMonth(WholeNumber(entry.txtBeginMonth.text)),
      beginYear(WholeNumber(entry.txtBeginYear.text)),
      disclosedApy(entry.txtDiscAPY.Number()),
      balance(entry.txtBal.Number()),
      rate(entry.txtIntRateA.Number()),
      term(entry.txtTerm.Number()),
      factorDays(FactorDays(entry.txtDailyRateFactor.text)),
      withdrawals(entry.txtWdrwlPeriods.Number()),
      distance(entry.txtBtwnReqIntWdrwl.Number()) {}

std::chrono::year_month EntryNumbers::Begin() const {
  return std::chrono::year{beginYear.value_or(0)} /
         std::chrono::month{static_cast<unsigned>(beginMonth.value_or(0))};
}

}  // namespace corvane
