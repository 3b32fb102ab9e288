#include "statement/StatementSetup.h"

#include "account/SessionRecord.h"

namespace corvane {

namespace {

/// What both compounding choices start from: all groups open, both day counts empty, no formula.
void NoneDaysContinuous(StatementSetup& setup) {
  setup.fraLYear = true;
  setup.optFormulaYes = false;
  setup.txtDCPeriod = {.text = {}, .enabled = false};
  setup.txtDCompounding = {};
}

}  // namespace

StatementSetup LoadSetup(SessionRecord& session) {
  session.RoundNotTruncate = true;
  return {};
}

void ChooseCompoundingNone(StatementSetup& setup) {
  NoneDaysContinuous(setup);
  setup.optICNone = true;
  setup.optICDays = false;
  setup.fraAPYFormula = true;
  setup.txtDCompounding.enabled = false;
  ChooseDaysInYear(setup, false);
}

void ChooseCompoundingDays(StatementSetup& setup) {
  NoneDaysContinuous(setup);
  setup.optICNone = false;
  setup.optICDays = true;
  setup.fraAPYFormula = false;
  setup.txtDCompounding.text = "1";
  ChooseDaysInYear(setup, false);
}

void ChooseDaysInYear(StatementSetup& setup, bool is366) {
  setup.optDY365 = !is366;
  setup.optDY366 = is366;
  setup.opt229yes = is366;
  setup.opt229no = !is366;
}

void ChooseAdditionalFormula(StatementSetup& setup, bool yes) {
  setup.optFormulaYes = yes;
  setup.optFormulaNo = !yes;
  setup.txtDCPeriod.enabled = yes;
  if (!yes) setup.txtDCPeriod.text.clear();
}

}  // namespace corvane
