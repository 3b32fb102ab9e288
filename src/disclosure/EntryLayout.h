#pragma once

#include <string>

#include "disclosure/DisclosureCheck.h"

namespace corvane {

/// The captions of the entry window for the account that was set up and the entry that is shown.
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
  std::string txtTermTip;  ///< tool tips of the fields whose unit is the account's
  std::string txtBtwnReqIntWdrwlTip;
};
EntryCaptions CaptionsFor(const DisclosureCheck& check);

/// Which groups of fields the account has. What does not apply is hidden, disabled and emptied, so
/// that nothing stale is computed or printed.
struct EntryGroups {
  bool periodNumber = false;  ///< stepped and tiered accounts
  bool dateRange = false;     ///< beginning month and year
  bool termDates = false;     ///< the term may be given by two dates
  bool withdrawal = false;    ///< interest has to be withdrawn
  bool factorFixed = false;   ///< the daily rate factor is the default and cannot be typed
};
EntryGroups GroupsFor(const DisclosureSetup& setup);

}  // namespace corvane
