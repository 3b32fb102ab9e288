#include "portfolio/OpenedCheck.h"

#include "portfolio/DayRows.h"
#include "portfolio/FillDisclosure.h"
#include "portfolio/FillStatement.h"

namespace corvane {

namespace {

/// The window that a filled check stands at, found by the checks that stand between them.
template <class Check>
CheckStage StageOf(const Check& check, AccountKind kind) {
  if (check.result) return CheckStage::Results;
  Check again = check;
  auto choices = check.setup;
  if (ContinueSetup(again, choices).refusal) return CheckStage::Setup;
  if (IsTiered(kind) && CheckTierTable(check.tiers)) return CheckStage::TierTable;
  return CheckStage::Entry;
}

std::string MessagesOf(const CheckedPart& part, const CheckedAccount& account) {
  std::string messages;
  for (const CheckedRow& row : part.Rows()) {
    if (row.account != &account || row.message.empty()) continue;
    messages.append(messages.empty() ? "" : " ").append(row.message);
  }
  return messages;
}

}  // namespace

OpenedCheck OpenAccount(const CheckedPart& part, const CheckedAccount& account) {
  const std::string file = std::string(part.Header()) + std::string(account.text);
  const std::string dayFile = std::string(kDayColumns) + "\n" + std::string(account.days);
  DayReader days(CsvSourceOf(dayFile));
  AccountReader reader(CsvSourceOf(file), account.days.empty() ? nullptr : &days);
  AccountBatch batch;
  reader.Read(batch, 1);
  const AccountRows rows = batch.Account(0);
  OpenedCheck opened{
      .header = AccountHeaderOf(rows.rows.front()), .check = {}, .told = MessagesOf(part, account)};
  if (account.isStatement) {
    const StatementCheck check = FillStatement(rows).check;
    opened.stage = StageOf(check, check.setup.kind);
    opened.check = check;
  } else {
    const DisclosureCheck check = FillDisclosure(rows.rows).check;
    opened.stage = StageOf(check, check.setup.kind.value_or(AccountKind::Regular));
    opened.check = check;
  }
  return opened;
}

}  // namespace corvane
