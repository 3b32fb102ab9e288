#include "disclosure/EntryLayout.h"

#include "account/SessionRecord.h"
#include "disclosure/EntrySequence.h"
#include "disclosure/EntryTerm.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

std::string Banner(const SessionRecord& session) {
  if (session.AcctRegular) return "  REGULAR ACCOUNT  ";
  if (session.AcctStepped) return "  STEPPED-RATE ACCOUNT  ";
  if (session.AcctTierA) return "  TIERED-RATE ACCOUNT   Method A  ";
  return "  TIERED-RATE ACCOUNT   Method B  ";
}

std::string CompoundingInfo(const SessionRecord& session) {
  if (session.CompoundDays) return "Interest Compounding = Days";
  if (session.CompoundMonths) return "Interest Compounding = Months";
  if (session.CompoundYears) return "Interest Compounding = Years";
  return "No Interest Compounding";
}

/// Label of the term field of a stepped account, whose terms are those of its periods.
std::string SteppedTermLabel(const SessionRecord& session, int length) {
  const std::string n = std::to_string(length);
  if (session.CompoundDays && length > 1) {
    return "Number Of " + n + " day Periods In This Period (Enter 0 For Calendar Below)";
  }
  if (session.CompoundDays) return "Number Of Days In This Period (Enter 0 For Calendar Below)";
  if (session.CompoundMonths) return "Number Of " + n + " Month Periods In This Period";
  if (session.CompoundYears) return "Number Of " + n + "-Year Periods In This Period";
  return "Days In This Period (Compound Period = None)";
}

std::string TermLabel(const SessionRecord& session) {
  const int length = PeriodLength(session);
  if (session.AcctStepped) return SteppedTermLabel(session, length);
  const std::string n = std::to_string(length);
  if (session.CompoundDays && length > 1) {
    return "Number Of " + n + " day Periods In Deposit Term (Enter 0 For Calendar Below)";
  }
  if (session.CompoundDays) return "No. Of Days In Deposit Term (Enter 0 For Calendar Below)";
  if (session.CompoundMonths) return "No. Of " + n + " Month Periods In Deposit Term.";
  if (session.CompoundYears) return "No. Of " + n + " Year Periods In Deposit Term.";
  if (IsTiered(session)) return "Days in Tier (Compound Period = None)";
  return "Days In Deposit Term (No Compounding) (0 = Calendar)";
}

/// Which bound of the tier the balance field holds.
std::string BoundCaption(const SessionRecord& session) {
  if (!session.AcctTierB) return "";
  if (session.PeriodNumber <= 1) return "  Low/High";
  return EndOfEntry(CurrentEntry(session)) == TierEnd::Low ? "   Low End" : "  High End";
}

void NamePeriods(const SessionRecord& session, EntryCaptions& captions) {
  const std::string number = std::to_string(session.PeriodNumber);
  if (session.AcctStepped) {
    captions.lblPerMessage = "(Stepped Rates Only)";
    captions.frmPeriodNumber = captions.lblTierPerNum = "Number of Periods";
    captions.lblPeriodNumber = "Period No. " + number;
  } else if (IsTiered(session)) {
    captions.lblPerMessage = "(Tiered Rates Only)";
    captions.frmPeriodNumber = "Total Number of Tiers";
    captions.lblTierPerNum = "Number of Tiers";
    captions.lblPeriodNumber = "Tier No. " + number;
  }
}

}  // namespace

EntryCaptions CaptionsFor(const SessionRecord& session) {
  EntryCaptions captions;
  captions.lblAcctType = Banner(session);
  captions.lblMethod = session.AcctTierA ? "Method A" : "Method B";
  captions.lblAcctInfo = CompoundingInfo(session);
  captions.lblPerMessage = "(Stepped/Tiered Rates Only)";
  captions.frmPeriodNumber = captions.lblTierPerNum = "Number Of Periods";
  captions.lblDays = TermLabel(session);
  captions.lblReqIntWdrwl = session.ReqWdrwlMonths ? "Months Between Required Interest Withdrawals"
                                                   : "Days Between Required Interest Withdrawals";
  captions.lblHighLowEnd = BoundCaption(session);
  NamePeriods(session, captions);
  return captions;
}

EntryGroups GroupsFor(const SessionRecord& session) {
  EntryGroups groups;
  groups.periodNumber = session.AcctStepped || IsTiered(session);
  groups.dateRange = session.CompoundMonths || session.ReqWdrwlMonths;
  groups.termDates = HasCalendar(session);
  groups.withdrawal = session.ReqWdrwlDays || session.ReqWdrwlMonths;
  groups.factorFixed = session.CompoundYears;
  return groups;
}

std::string DefaultFactor(const SessionRecord& session) {
  return session.DaysInYear365 ? "1/365" : "1/366";
}

std::string FactorFor(const SessionRecord& session, const std::string& kept) {
  const std::string other = session.DaysInYear365 ? "1/366" : "1/365";
  const bool useDefault = session.CompoundYears || Trim(kept).empty() || kept == other;
  return useDefault ? DefaultFactor(session) : kept;
}

}  // namespace corvane
