#include "disclosure/EntrySlips.h"

#include "account/SlipNotice.h"

namespace corvane {

namespace {

/// The entry before the one that the window stands at; there has to be one.
const DisclosureEntry& LastCompleted(const DisclosureCheck& check) {
  return check.entries.at(static_cast<std::size_t>(check.completed - 1));
}

}  // namespace

std::optional<std::string> SlipOf(const DisclosureCheck& check, const DisclosureEntry& entry,
                                  std::string_view control) {
  if (control == "txtDailyRateFactor") return FactorNotice(entry.txtDailyRateFactor.text);
  if (check.completed == 0) return std::nullopt;
  const DisclosureEntry& before = LastCompleted(check);
  if (control == "txtBal") return JumpNotice("Balance", entry.txtBal.text, before.txtBal.text);
  if (control != "txtIntRateA") return std::nullopt;
  return JumpNotice("Rate", entry.txtIntRateA.text, before.txtIntRateA.text);
}

std::optional<std::string> SlipOfResults(const DisclosureCheck& check) {
  if (check.completed == 0) return std::nullopt;
  return FactorNotice(LastCompleted(check).txtDailyRateFactor.text);
}

}  // namespace corvane
