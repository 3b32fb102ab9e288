#pragma once

#include <string>

#include "disclosure/DisclosureEntry.h"

namespace corvane {

struct SessionRecord;

/// The captions of the entry window for the account that was set up.
struct EntryCaptions {
  std::string lblAcctType;
  std::string lblMethod;
  std::string lblAcctInfo;
  std::string lblPerMessage;
  std::string frmPeriodNumber;
  std::string lblTierPerNum;
  std::string lblDays;
  std::string lblReqIntWdrwl;
  std::string lblPeriodNumber;
  std::string lblHighLowEnd;
};

EntryCaptions CaptionsFor(const SessionRecord& session);

/// Which groups of fields the account has. What does not apply is hidden, disabled and emptied, so
/// that nothing stale is computed or printed.
struct EntryGroups {
  bool periodNumber = false;  ///< stepped and tiered accounts
  bool dateRange = false;     ///< beginning month and year
  bool termDates = false;     ///< the term may be given by two dates
  bool withdrawal = false;    ///< interest has to be withdrawn
  bool factorFixed = false;   ///< the daily rate factor is the default and cannot be typed
};

EntryGroups GroupsFor(const SessionRecord& session);

/// "1/365" or "1/366", by the year basis of the account.
std::string DefaultFactor(const SessionRecord& session);

/// The daily rate factor that the field shows: a factor kept from before (in the field or stored
/// for the first period), unless there is none or it is the default of the other year basis.
std::string FactorFor(const SessionRecord& session, const std::string& kept);

}  // namespace corvane
