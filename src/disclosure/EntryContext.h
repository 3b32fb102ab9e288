#pragma once

#include <string>

#include "account/AccountHeader.h"
#include "disclosure/DisclosureCheck.h"

namespace corvane {

/// What the entry window says of the account: "First Bank · every 1 day · 365 days · 29 Feb not
/// counted · no withdrawals". The year stands only where the setup asks for it.
std::string ContextOf(const AccountHeader& header, const DisclosureSetup& setup);

/// The tier of the current entry: "Tier 2: above 2,500.00 up to 15,000.00 at 5.50 %".
struct TierContext {
  std::string text;             ///< empty without tiers, and once all are entered
  bool balanceOutside = false;  ///< by method A a balance was typed that lies in another tier
};
TierContext TierContextOf(const DisclosureCheck& check, const Field& balance);

}  // namespace corvane
