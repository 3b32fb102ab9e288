#pragma once

#include <string>

#include "account/Field.h"
#include "support/Dates.h"

namespace corvane {

struct SessionRecord;

/// The statement period window's fields, options and enabled groups, named as its controls. A new
/// one is empty, with ledger and collected balances equal and no method chosen.
struct StatementEntry {
  StatementField txtDateStart{.text = std::string(kEmptyDateMask)};
  StatementField txtDateEnd{.text = std::string(kEmptyDateMask)};
  StatementField txtMinADB;
  StatementField txtMinDBal;
  StatementField txtDClApy;
  StatementField txtIntRate;
  StatementField txtDRFactor;
  bool optDailyBal = false;
  bool optADB = false;
  bool fraIntCalcMethod = true;  ///< enabled
  bool lblAddAPY = false;        ///< shown
  bool optLColl_Yes = true;
  bool optLColl_No = false;
  bool optLADBYes = true;
  bool optLADBNo = false;
  bool Frame4 = false;  ///< enabled: the choice of the ledger ADB
  StatementField txtLedgerdays;
  StatementField txtADBLedgerBalance;
  bool cmdComputeLADB = true;  ///< enabled
  StatementField txtColDays{.text = {}, .enabled = false};
  StatementField txtADBCollectedBalance{.text = {}, .enabled = false};
  bool cmdComputeCADB = false;  ///< enabled
  StatementField txtIntAmt;
};

/// The window's lblTopic.
inline constexpr const char* kStatementTopic = "  APY Earned For Periodic Statement  ";

/// Readies the window for a showing by navigation. A fresh window (just made, or the account is
/// new, a mark that this clears) is emptied; any other keeps what was typed. A stored daily rate
/// factor is taken; without one the factor follows the setup's days in the year.
void InitStatementEntry(SessionRecord& session, StatementEntry& entry, bool justMade);

/// lblAccountInfo: the kind of account and its compounding.
std::string AccountInfoText(const SessionRecord& session);

/// lblIntType: names the method by which the interest amount came about.
std::string InterestTypeText(const StatementEntry& entry);

/// Whether the calendar picture can be used: while a date field can.
bool CalendarEnabled(const StatementEntry& entry);

}  // namespace corvane
