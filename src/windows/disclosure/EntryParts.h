#pragma once

#include "disclosure/DisclosureCheck.h"

namespace Ui {
class DisclosureEntryWindow;
}

namespace corvane {

/// The captions and tips of the entry window, by the account and the entry that it stands at.
void ShowCaptions(const Ui::DisclosureEntryWindow& ui, const DisclosureCheck& check);

/// Shows the groups of fields that the account has.
void ShowGroups(const Ui::DisclosureEntryWindow& ui, const DisclosureSetup& setup);

}  // namespace corvane
