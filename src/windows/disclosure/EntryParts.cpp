#include "windows/disclosure/EntryParts.h"

#include <QtWidgets>

#include "disclosure/EntryLayout.h"
#include "ui_DisclosureEntryWindow.h"

namespace corvane {

void ShowCaptions(const Ui::DisclosureEntryWindow& ui, const DisclosureCheck& check) {
  const EntryCaptions captions = CaptionsFor(check);
  const std::pair<QLabel*, const std::string&> labels[] = {
      {ui.lblAcctType, captions.lblAcctType},       {ui.lblMethod, captions.lblMethod},
      {ui.lblAcctInfo, captions.lblAcctInfo},       {ui.lblPerMessage, captions.lblPerMessage},
      {ui.lblTierPerNum, captions.lblTierPerNum},   {ui.lblDays, captions.lblDays},
      {ui.lblReqIntWdrwl, captions.lblReqIntWdrwl}, {ui.lblPeriodNumber, captions.lblPeriodNumber},
      {ui.lblHighLowEnd, captions.lblHighLowEnd},
  };
  for (const auto& [label, text] : labels) label->setText(QString::fromStdString(text));
  ui.frmPeriodNumber->setTitle(QString::fromStdString(captions.frmPeriodNumber));
  ui.txtTerm->setToolTip(QString::fromStdString(captions.txtTermTip));
  ui.txtBtwnReqIntWdrwl->setToolTip(QString::fromStdString(captions.txtBtwnReqIntWdrwlTip));
}

void ShowGroups(const Ui::DisclosureEntryWindow& ui, const DisclosureSetup& setup) {
  const EntryGroups groups = GroupsFor(setup);
  ui.frmPeriodNumber->setVisible(groups.periodNumber);
  ui.frmDateRange->setVisible(groups.dateRange);
  ui.frmTermDates->setVisible(groups.termDates);
  ui.frmIntWithDrawal->setVisible(groups.withdrawal);
  ui.lblMethod->setVisible(setup.IsTiered());
  ui.lblPeriodNumber->setVisible(groups.periodNumber);
  ui.lblHighLowEnd->setVisible(setup.kind == AccountKind::TierB);
}

}  // namespace corvane
