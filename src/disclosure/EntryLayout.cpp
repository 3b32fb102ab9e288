#include "disclosure/EntryLayout.h"

#include "disclosure/EntrySequence.h"
#include "disclosure/EntryTerm.h"

namespace corvane {

namespace {

std::string Banner(const DisclosureSetup& setup) {
  switch (setup.kind.value_or(AccountKind::Regular)) {
    case AccountKind::Regular:
      return "  REGULAR ACCOUNT  ";
    case AccountKind::Stepped:
      return "  STEPPED-RATE ACCOUNT  ";
    case AccountKind::TierA:
      return "  TIERED-RATE ACCOUNT   Method A  ";
    case AccountKind::TierB:
      return "  TIERED-RATE ACCOUNT   Method B  ";
  }
  return "";
}

std::string CompoundingInfo(const DisclosureSetup& setup) {
  switch (setup.compounding) {
    case Unit::None:
      return "No Interest Compounding";
    case Unit::Days:
      return "Interest Compounding = Days";
    case Unit::Months:
      return "Interest Compounding = Months";
    case Unit::Years:
      return "Interest Compounding = Years";
  }
  return "";
}

/// Label of the term field of a stepped account, whose terms are those of its periods.
std::string SteppedTermLabel(Unit unit, int length) {
  const std::string n = std::to_string(length);
  switch (unit) {
    case Unit::None:
      return "Days In This Period (Compound Period = None)";
    case Unit::Days:
      return "Number Of " + (length > 1 ? n + " day Periods" : std::string("Days")) +
             " In This Period (Enter 0 For Calendar Below)";
    case Unit::Months:
      return "Number Of " + n + " Month Periods In This Period";
    case Unit::Years:
      return "Number Of " + n + "-Year Periods In This Period";
  }
  return "";
}

std::string TermLabel(const DisclosureSetup& setup) {
  const int length = PeriodLength(setup);
  if (setup.kind == AccountKind::Stepped) return SteppedTermLabel(setup.compounding, length);
  const std::string n = std::to_string(length);
  switch (setup.compounding) {
    case Unit::None:
      return setup.IsTiered() ? "Days in Tier (Compound Period = None)"
                              : "Days In Deposit Term (No Compounding) (0 = Calendar)";
    case Unit::Days:
      return (length > 1 ? "Number Of " + n + " day Periods" : std::string("No. Of Days")) +
             " In Deposit Term (Enter 0 For Calendar Below)";
    case Unit::Months:
      return "No. Of " + n + " Month Periods In Deposit Term.";
    case Unit::Years:
      return "No. Of " + n + " Year Periods In Deposit Term.";
  }
  return "";
}

std::string TermTip(const DisclosureSetup& setup) {
  const int length = PeriodLength(setup);
  const std::string n = std::to_string(length);
  switch (setup.compounding) {
    case Unit::None:
    case Unit::Days:
      return "Term Length in " + (length > 1 ? n + " day Periods" : std::string("Days")) +
             ".  Enter 0 to use the Calendar.";
    case Unit::Months:
      return "Term Length in " + n + " Month Periods.";
    case Unit::Years:
      return "Term Length in " + n + " Year Periods.";
  }
  return "";
}

/// Which bound of the tier the balance field holds.
std::string BoundCaption(const DisclosureCheck& check) {
  if (check.setup.kind != AccountKind::TierB) return "";
  const int current = CurrentEntry(check);
  if (TierOfEntry(current) == 1) return "  Low/High";
  return IsLowEnd(current) ? "   Low End" : "  High End";
}

void NamePeriods(const DisclosureCheck& check, EntryCaptions& captions) {
  const std::string number = std::to_string(PeriodOrTier(check));
  if (check.setup.kind == AccountKind::Stepped) {
    captions.lblPerMessage = "(Stepped Rates Only)";
    captions.frmPeriodNumber = captions.lblTierPerNum = "Number of Periods";
    captions.lblPeriodNumber = "Period No. " + number;
  } else if (check.setup.IsTiered()) {
    captions.lblPerMessage = "(Tiered Rates Only)";
    captions.frmPeriodNumber = "Total Number of Tiers";
    captions.lblTierPerNum = "Number of Tiers";
    captions.lblPeriodNumber = "Tier No. " + number;
  }
}

}  // namespace

EntryCaptions CaptionsFor(const DisclosureCheck& check) {
  const bool monthly = check.setup.withdrawal == Unit::Months;
  EntryCaptions captions;
  captions.lblAcctType = Banner(check.setup);
  captions.lblMethod = check.setup.kind == AccountKind::TierA ? "Method A" : "Method B";
  captions.lblAcctInfo = CompoundingInfo(check.setup);
  captions.lblPerMessage = "(Stepped/Tiered Rates Only)";
  captions.frmPeriodNumber = captions.lblTierPerNum = "Number Of Periods";
  captions.lblDays = TermLabel(check.setup);
  captions.lblReqIntWdrwl = monthly ? "Months Between Required Interest Withdrawals"
                                    : "Days Between Required Interest Withdrawals";
  captions.lblHighLowEnd = BoundCaption(check);
  captions.txtTermTip = TermTip(check.setup);
  captions.txtBtwnReqIntWdrwlTip = monthly ? "Months between required Interest Withdrawal"
                                           : "Days between required Interest Withdrawal";
  NamePeriods(check, captions);
  return captions;
}

EntryGroups GroupsFor(const DisclosureSetup& setup) {
  return {.periodNumber = setup.kind == AccountKind::Stepped || setup.IsTiered(),
          .dateRange = setup.compounding == Unit::Months || setup.withdrawal == Unit::Months,
          .termDates = HasCalendar(setup),
          .withdrawal = setup.withdrawal != Unit::None,
          .factorFixed = setup.compounding == Unit::Years};
}

}  // namespace corvane
