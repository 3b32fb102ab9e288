#include "portfolio/CheckedPart.h"

#include <algorithm>
#include <cstring>

#include "portfolio/DayRows.h"
#include "portfolio/ResultRows.h"

namespace corvane {

namespace {

bool IsDamaged(const AccountRows& account) {
  const auto isDamaged = [](const auto& row) { return *row.damage != '\0'; };
  return std::ranges::any_of(account.rows, isDamaged) ||
         (account.days && std::ranges::any_of(account.days->rows, isDamaged));
}

std::string DaysText(const AccountDays& days) {
  std::string text;
  for (const DayRow& row : days.rows) {
    AppendDayRow(text, days.account, row.date, row.balance, row.rate);
  }
  return text;
}

std::string MessageOf(const RowOutcome& outcome) {
  const bool hasBoth = !outcome.message.empty() && !outcome.note.empty();
  return outcome.message + (hasBoth ? " " : "") + outcome.note;
}

}  // namespace

CheckedPart::CheckedPart(const CheckedBatch& batch, const PortfolioHeader& header)
    : header_(Keep(ResultHeader(header))) {
  accounts_.reserve(batch.outcomes.size());
  rows_.reserve(batch.accounts.rows.size());
  for (std::size_t index = 0; index < batch.outcomes.size(); ++index) {
    TakeAccount(batch.accounts.Account(index), batch.outcomes[index], header);
  }
}

std::string_view CheckedPart::Keep(std::string_view text) {
  if (text.empty()) return {};
  auto* copy = static_cast<char*>(texts_.allocate(text.size(), 1));
  std::memcpy(copy, text.data(), text.size());
  return {copy, text.size()};
}

void CheckedPart::TakeAccount(const AccountRows& account, const AccountOutcome& outcome,
                              const PortfolioHeader& header) {
  std::string text;
  AppendResults(text, header, account, outcome);
  const bool givesAverage = !account.rows.front().Cell(Column::AverageBalance).empty();
  accounts_.push_back({.text = Keep(text),
                       .days = account.days ? Keep(DaysText(*account.days)) : std::string_view(),
                       .isStatement = outcome.isStatement,
                       .kind = outcome.kind,
                       .isRefused = outcome.isRefused,
                       .isDamaged = IsDamaged(account),
                       .lacksDays = outcome.isStatement && !givesAverage && !account.days});
  for (std::size_t row = 0; row < account.rows.size(); ++row) {
    TakeRow(account.rows[row], outcome.rows[row]);
  }
}

void CheckedPart::TakeRow(const PortfolioRow& row, const RowOutcome& outcome) {
  rows_.push_back({.account = &accounts_.back(),
                   .line = row.line,
                   .name = Keep(row.Cell(Column::Account)),
                   .description = Keep(row.Cell(Column::Description)),
                   .message = Keep(MessageOf(outcome)),
                   .figures = outcome.figures});
  if (!outcome.highEnd.verdict) return;
  CheckedRow high = rows_.back();
  high.message = {};
  high.figures = outcome.highEnd;
  high.isHighEnd = true;
  rows_.push_back(high);
}

}  // namespace corvane
