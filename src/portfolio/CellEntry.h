#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "account/AccountHeader.h"
#include "account/Field.h"
#include "account/NumericEntry.h"
#include "account/TierTable.h"
#include "portfolio/AccountRows.h"

namespace corvane {

/// What is told of a row: the messages that a window shows on the way, and why it goes no further.
struct Told {
  std::string notices;
  std::optional<Refusal> refusal;
  std::size_t row = 0;  ///< of the account, from 0, that is refused

  /// Adds a message; nothing is added twice.
  void Add(const std::optional<Refusal>& notice);
  /// Takes a refusal over; true when there is one.
  bool Refuses(std::optional<Refusal> why);
};

/// Puts a cell into a numeric field as a paste does: "$1,234.50" gives "1234.50", and what has too
/// many decimals is cut.
std::string Typed(std::string_view cell, std::span<const DecimalLimit> limits, const char* control,
                  Told& told);
std::string Typed(std::string_view cell, const DecimalLimit& limit, Told& told);

/// A column and the field that its cells are typed into.
template <class Values>
struct FieldColumn {
  Column column;
  Field Values::*field;
  const char* control;
};

/// Why a cell has no place where nothing can be typed: it is neither empty nor 0 and says something
/// else than what stands there.
std::optional<Refusal> CheckClosed(std::string_view cell, std::string_view stands, Column column);

/// Types a cell into its field, or refuses it where the field is closed. An empty cell leaves what
/// stands there, and nothing is typed behind a refusal.
template <class Values>
void TypeCell(Values& values, const FieldColumn<Values>& column, std::string_view cell,
              Told& told) {
  Field& field = values.*column.field;
  if (told.refusal || cell.empty()) return;
  if (!field.enabled) {
    told.Refuses(CheckClosed(cell, field.text, column.column));
    return;
  }
  field.text = Typed(cell, Values::Decimals(), column.control, told);
  field.workedOut = false;
}

/// A word of a column and the option that it chooses.
struct OptionWord {
  Column column;
  std::string_view word;
  std::string_view control;
};

/// What is said of a word that is none of the column's.
Refusal NoWordOf(Column column, std::span<const OptionWord> words);

/// The words of columns that choose options of a window's values.
template <class Values>
class OptionWords {
 public:
  explicit OptionWords(std::span<const OptionWord> words) : words_(words) {
    for (const OptionWord& word : words) {
      const auto options = Values::Options();
      const auto isNamed = [&word](const auto& option) { return word.control == option.control; };
      options_.push_back(&*std::ranges::find_if(options, isNamed));
    }
  }

  /// Chooses the option that a cell names; an empty cell leaves what was chosen. Refuses a word
  /// that is none of the column's.
  std::optional<Refusal> Choose(std::string_view cell, Column column, Values& values) const {
    if (Trim(cell).empty()) return std::nullopt;
    for (std::size_t k = 0; k < words_.size(); ++k) {
      if (words_[k].column != column || !IsWord(cell, words_[k].word)) continue;
      options_[k]->choose(values);
      return std::nullopt;
    }
    return NoWordOf(column, words_);
  }

  /// The word of the option that is chosen; empty for none.
  std::string_view ChosenWord(Column column, const Values& values) const {
    for (std::size_t k = 0; k < words_.size(); ++k) {
      if (words_[k].column == column && options_[k]->isChosen(values)) return words_[k].word;
    }
    return "";
  }

 private:
  std::span<const OptionWord> words_;
  std::vector<const OptionName<Values>*> options_;
};

/// A date as its field holds it, read as one that is pasted: "2024-01-31" and "1/31/2024" give
/// "01-31-2024"; any other text stays as it is.
std::string DateText(std::string_view cell);

/// The identification texts of a row.
AccountHeader AccountHeaderOf(const PortfolioRow& row);

/// What is said of a tier table that has too few or too many rows.
std::optional<Refusal> CheckTierCount(std::size_t tiers);

/// The tier table that the rows of an account describe, and what is told of it.
TierTable TierTableOf(std::span<const PortfolioRow> rows, Told& told);

}  // namespace corvane
