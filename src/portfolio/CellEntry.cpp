#include "portfolio/CellEntry.h"

#include "account/DateEntry.h"
#include "disclosure/EntryChecks.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

std::u16string Wide(std::string_view ascii) {
  return {ascii.begin(), ascii.end()};
}

std::string Narrow(const std::u16string& ascii) {
  std::string text;
  for (const char16_t c : ascii) text += static_cast<char>(c);
  return text;
}

bool FitsDecimals(std::string_view number, int decimals) {
  const std::size_t point = number.find('.');
  return point == number.npos || number.size() - point - 1 <= static_cast<std::size_t>(decimals);
}

}  // namespace

void Told::Add(const std::optional<Refusal>& notice) {
  if (!notice || notices.find(notice->text) != notices.npos) return;
  if (!notices.empty()) notices += ' ';
  notices += notice->text;
}

bool Told::Refuses(std::optional<Refusal> why) {
  if (why) refusal = std::move(why);
  return refusal.has_value();
}

std::string Typed(std::string_view cell, const DecimalLimit& limit, Told& told) {
  if (cell.empty()) return "";
  if (!IsNumeric(cell)) {
    // What is no number even so stays for the checks to refuse.
    const auto number = CleanPastedNumber(cell, limit.kind);
    return number ? Typed(*number, limit, told) : std::string(cell);
  }
  if (FitsDecimals(cell, limit.decimals)) return std::string(cell);
  const LimitedText limited = LimitDecimals(Wide(Trim(cell)), limit.decimals, limit.kind);
  told.Add(limited.message);
  return Narrow(limited.text);
}

std::optional<Refusal> CheckClosed(std::string_view cell, std::string_view stands, Column column) {
  const std::string_view text = Trim(cell);
  if (text.empty() || text == Trim(stands)) return std::nullopt;
  const auto number = NumberOf(text);
  const bool isSame = number && (number == 0.0 || number == NumberOf(stands));
  if (isSame || IsWord(text, stands)) return std::nullopt;
  const std::string place = "The column " + std::string(NameOf(column)) + " has to be empty ";
  return Refusal{place + (Trim(stands).empty() ? "for this account."
                                               : "or " + std::string(Trim(stands)) + " here.")};
}

Refusal NoWordOf(Column column, std::span<const OptionWord> words) {
  std::string known;
  for (const OptionWord& word : words) {
    if (word.column == column) known += (known.empty() ? "" : ", ") + std::string(word.word);
  }
  return {"The column " + std::string(NameOf(column)) + " has to be one of: " + known + "."};
}

std::optional<Date> DateOf(std::string_view cell) {
  const auto date = ParseDate(cell);
  return date ? date : ReadPastedDate(cell);
}

std::string DateText(std::string_view cell) {
  if (Trim(cell).empty()) return std::string(kEmptyDateMask);
  const auto date = DateOf(cell);
  return date ? FormatDate(*date) : std::string(cell);
}

AccountHeader AccountHeaderOf(const PortfolioRow& row) {
  const auto text = [&row](Column column) { return std::string(row.Cell(column)); };
  return {.institution = text(Column::Institution),
          .description = text(Column::Description),
          .holder = text(Column::Holder),
          .number = text(Column::Number)};
}

std::optional<Refusal> CheckTierCount(std::size_t tiers) {
  // The tier table offers no other number; the entry refuses one in these words.
  DisclosureCheck check;
  check.setup.kind = AccountKind::TierA;
  DisclosureEntry entry;
  entry.txtTierPerNum.text = std::to_string(tiers);
  auto refusal = CheckEntry(check, entry);
  return refusal && refusal->field == "txtTierPerNum" ? refusal : std::nullopt;
}

TierTable TierTableOf(std::span<const PortfolioRow> rows, Told& told) {
  TierTable table;
  if (told.Refuses(CheckTierCount(rows.size()))) return table;
  for (const PortfolioRow& row : rows) {
    auto& [rate, notExceeding] = table.Of(++table.count);
    rate = Typed(row.Cell(Column::Rate), kTierRateDecimals, told);
    const std::string_view bound = row.Cell(Column::NotExceeding);
    if (&row != &rows.back()) {
      notExceeding = Typed(bound, kTierBoundDecimals, told);
    } else if (told.Refuses(CheckClosed(bound, "", Column::NotExceeding))) {
      told.row = rows.size() - 1;
      return table;
    }
  }
  if (const auto refused = CheckTierTable(table)) {
    told.refusal = refused->refusal;
    told.row = static_cast<std::size_t>(refused->element - 1);
  }
  return table;
}

}  // namespace corvane
