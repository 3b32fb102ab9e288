#include "disclosure/EntryChecks.h"

#include "CheckTable.h"
#include "disclosure/EntrySequence.h"

namespace corvane {
namespace {

/// Types into a field; which fields are enabled is up to the account, as in the window.
bool Type(const DisclosureCheck& check, DisclosureEntry& entry, const std::string& name,
          const std::string& text) {
  const DisclosureEntry present = PresentEntry(check);
  for (const auto& [known, field] : DisclosureEntry::Fields()) {
    (entry.*field).enabled = (present.*field).enabled || name == known;
  }
  const bool known = Put(entry, name, text);
  entry.tStartDate.enabled = entry.tEndDate.enabled = TermDatesEnabled(check, entry.txtTerm);
  return known;
}

TEST(DisclosureEntryChecks, EachFailsInItsTurnAndNothingElseIsRefused) {
  DisclosureCheck check;
  DisclosureEntry entry;
  RunChecks("disclosure/EntryChecks.txt",
            {.begin =
                 [&] {
                   check = {};
                   check.tiers.count = 2;
                   check.tiers.Of(1).notExceeding = "1000";
                   entry = {};
                 },
             .put =
                 [&](auto& name, auto& text) {
                   return Put(check.setup, name, text) || Type(check, entry, name, text);
                 },
             .said = [&] { return Said(CheckEntry(check, entry)); },
             .shown =
                 [&](auto& name) {
                   DisclosureEntry completed = entry;
                   Complete(check.setup, completed, !CheckEntry(check, entry));
                   return ShownBy(completed, name);
                 }});
}

}  // namespace
}  // namespace corvane
