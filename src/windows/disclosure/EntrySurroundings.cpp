#include "windows/disclosure/EntrySurroundings.h"

#include <QtWidgets>

#include "disclosure/EntryContext.h"
#include "disclosure/EntryOverview.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/NextStep.h"
#include "windows/frame/ContextLine.h"
#include "windows/frame/EntryList.h"
#include "windows/frame/Form.h"
#include "windows/frame/Session.h"

namespace corvane {

EntrySurroundings::EntrySurroundings(Form& window, const Session& session, QAbstractButton& back)
    : window_(window),
      session_(session),
      account_(window.AddContextLine("lblContext")),
      tier_(window.AddContextLine("lblTierContext")),
      entries_(new EntryList(&window)) {
  Place();
  QObject::connect(entries_, &EntryList::GoBackTo, &back,
                   [this, &back](int entry) { GoBackTo(entry, back); });
}

void EntrySurroundings::ShowCheck() const {
  const DisclosureCheck& check = session_.disclosure;
  account_->ShowContext(ContextOf(session_.header, check.setup));
  tier_->setVisible(check.setup.IsTiered());
  const std::string heading = HasOverview(check.setup) ? EntryHeading(check) : "";
  entries_->ShowEntries(heading, EntriesSoFar(check), CurrentEntry(check));
  window_.ShowNextStep(NextStepOfEntry(check));
}

void EntrySurroundings::ShowTyped(const DisclosureEntry& entry) const {
  const auto [text, warns] = TierContextOf(session_.disclosure, entry.txtBal);
  tier_->ShowContext(text, warns);
}

void EntrySurroundings::Place() const {
  entries_->PlaceIn(window_);
}

void EntrySurroundings::GoBackTo(int entry, QAbstractButton& back) const {
  const int times = CurrentEntry(session_.disclosure) - entry;
  for (int i = 0; i < times; ++i) back.click();
}

}  // namespace corvane
