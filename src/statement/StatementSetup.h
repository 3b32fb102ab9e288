#pragma once

#include "account/Field.h"

namespace corvane {

struct SessionRecord;

/// The statement setup window's options, fields and enabled groups, named as its controls. A new
/// one stands as the window does when it opens: a regular account, no compounding, 365 days.
struct StatementSetup {
  bool optRegNoDisc = true;
  bool optStepRate = false;
  bool optTierA = false;
  bool optTierB = false;
  bool optICNone = true;
  bool optICDays = false;
  bool optDY365 = true;
  bool optDY366 = false;
  bool opt229yes = false;
  bool opt229no = true;
  bool optFormulaYes = false;
  bool optFormulaNo = true;
  bool fraLYear = false;      ///< enabled
  bool fraAPYFormula = true;  ///< enabled, and shown with its labels and txtDCPeriod
  StatementField txtDCompounding{.text = {}, .enabled = false};
  StatementField txtDCPeriod{.text = {}, .enabled = false};
};

/// The setup of a window that opens; from then on computed values are rounded.
StatementSetup LoadSetup(SessionRecord& session);

// What choosing an option does to the rest of the window.

void ChooseCompoundingNone(StatementSetup& setup);
void ChooseCompoundingDays(StatementSetup& setup);
void ChooseDaysInYear(StatementSetup& setup, bool is366);
void ChooseAdditionalFormula(StatementSetup& setup, bool yes);

}  // namespace corvane
