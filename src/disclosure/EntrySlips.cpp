#include "disclosure/EntrySlips.h"

#include "account/SlipNotice.h"

namespace corvane {

std::optional<std::string> SlipOf(const DisclosureCheck& check, const DisclosureEntry& entry,
                                  std::string_view control) {
  if (control == "txtDailyRateFactor") return FactorNotice(entry.txtDailyRateFactor.text);
  if (check.completed == 0) return std::nullopt;
  const DisclosureEntry& before = check.entries.at(static_cast<std::size_t>(check.completed - 1));
  if (control == "txtBal") return JumpNotice("Balance", entry.txtBal.text, before.txtBal.text);
  if (control != "txtIntRateA") return std::nullopt;
  return JumpNotice("Rate", entry.txtIntRateA.text, before.txtIntRateA.text);
}

}  // namespace corvane
