#include "account/TierTable.h"

#include "account/SessionRecord.h"
#include "support/NumberText.h"

namespace corvane {

namespace {

bool IsEmpty(const std::string& text) {
  return Trim(text).empty();
}

/// A bound of 0 or less bounds nothing and is refused like an empty one.
bool IsMissingBound(const std::string& text) {
  return IsEmpty(text) || (IsNumeric(text) && NumericValue(text) <= 0);
}

TierRefusal Refuse(std::string text, const char* array, int index) {
  return {{std::move(text), ElementName(array, index)}};
}

std::optional<TierRefusal> CheckFirstTier(const TierTable& table) {
  if (IsEmpty(table.txtInt.At(1))) return Refuse("Please input Interest Rate.", "txtInt", 1);
  if (!IsNumeric(table.txtInt.At(1))) {
    return Refuse("Please enter integers and no decimals for Interest Rate.", "txtInt", 1);
  }
  if (IsMissingBound(table.txt_bne.At(1)) || !IsNumeric(table.txt_bne.At(1))) {
    return Refuse("Please enter deposit balance for Tier 1", "txt_bne", 1);
  }
  return std::nullopt;
}

std::optional<TierRefusal> CheckRate(const TierTable& table, int tier) {
  const std::string rate = table.txtInt.At(tier);
  if (IsEmpty(rate)) return Refuse("Please input Interest Rate", "txtInt", tier);
  if (IsNumeric(rate)) return std::nullopt;
  return Refuse("Please enter integers and no decimals for Interest Rate.", "txtInt", tier);
}

/// The upper bound of the tier below, which a later tier starts from.
std::optional<TierRefusal> CheckBoundBelow(const TierTable& table, int tier) {
  if (tier == kFewestTiers) return std::nullopt;
  const std::string bound = table.txt_bne.At(tier - 1);
  const std::string place = std::to_string(tier) + ".";
  if (IsMissingBound(bound)) {
    return Refuse("Please input deposit balance for upto not exceeding tier " + place, "txt_bne",
                  tier - 1);
  }
  if (IsNumeric(bound)) return std::nullopt;
  return Refuse("Please enter integers for deposit balance for upto not exceeding tier " + place,
                "txt_bne", tier - 1);
}

std::optional<TierRefusal> CheckOrder(const TierTable& table, int tier) {
  if (tier == table.tiers) return std::nullopt;
  const std::string upper = table.txt_bne.At(tier);
  // A bound that is missing or no number has a message of its own.
  const bool compares = !IsMissingBound(upper) && IsNumeric(upper);
  if (!compares || NumericValue(table.txt_bne.At(tier - 1)) < NumericValue(upper)) {
    return std::nullopt;
  }
  auto refusal = Refuse("Each succeeding number must be larger than the previous", "txt_bne", tier);
  refusal.clearsBox = false;
  return refusal;
}

/// Stores a value and tells whether it was another one before.
bool Replace(Table<double>& stored, int index, double value) {
  const bool changed = stored.At(index) != value;
  stored.Set(index, value);
  return changed;
}

bool StoreBoxes(const Table<std::string>& boxes, Table<double>& stored) {
  bool changed = false;
  for (int index = stored.First(); index <= stored.Last(); ++index) {
    changed |= Replace(stored, index, NumericValue(boxes.At(index)));
  }
  return changed;
}

void ShowStored(const Table<double>& stored, std::string (*format)(double),
                Table<std::string>& boxes) {
  for (int index = stored.First(); index <= stored.Last(); ++index) {
    const double value = stored.At(index);
    boxes.Set(index, value == 0 ? "" : format(value));
  }
}

}  // namespace

std::string ElementName(const char* array, int index) {
  return std::string(array) + "(" + std::to_string(index) + ")";
}

void FillLowerBounds(TierTable& table) {
  for (int tier = kFewestTiers; tier <= table.tiers; ++tier) {
    const std::string below(Trim(table.txt_bne.At(tier - 1)));
    table.TxtAbove.Set(tier, FormatFixed2(NumericValue(below)));
  }
}

std::optional<TierRefusal> CheckTierTable(const TierTable& table) {
  if (const auto refusal = CheckFirstTier(table)) return refusal;
  for (int tier = kFewestTiers; tier <= table.tiers; ++tier) {
    for (const auto check : {CheckRate, CheckBoundBelow, CheckOrder}) {
      if (const auto refusal = check(table, tier)) return refusal;
    }
  }
  return std::nullopt;
}

void ClearUnusedTiers(TierTable& table) {
  for (int tier = table.tiers; tier <= table.txt_bne.Last(); ++tier) table.txt_bne.Set(tier, "");
  for (int tier = table.tiers + 1; tier <= kMostTiers; ++tier) {
    table.txtInt.Set(tier, "");
    table.TxtAbove.Set(tier, "");
  }
}

void StoreTierTable(SessionRecord& session, const TierTable& table) {
  if (table.tiers == 0) return;
  const bool boundsChanged = StoreBoxes(table.txt_bne, session.TierNotExceeding);
  const bool aboveChanged = StoreBoxes(table.TxtAbove, session.TierAbove);
  const bool ratesChanged = StoreBoxes(table.txtInt, session.TierRate);
  if (boundsChanged || aboveChanged || ratesChanged) session.TierRecalc = true;
  for (int tier = 1; tier <= session.TierSpan.Last(); ++tier) {
    session.TierSpan.Set(tier, session.TierNotExceeding.At(tier) - session.TierAbove.At(tier));
  }
  session.TierFormLoaded = true;
  session.TierCountSel = static_cast<std::int16_t>(table.tiers);
}

TierTable StoredTierTable(const SessionRecord& session) {
  TierTable table;
  table.tiers = session.TierCountSel;
  ShowStored(session.TierRate, FormatRate, table.txtInt);
  ShowStored(session.TierAbove, FormatFixed2, table.TxtAbove);
  ShowStored(session.TierNotExceeding, FormatFixed2, table.txt_bne);
  return table;
}

void DropEntriesOfChangedTable(SessionRecord& session) {
  if (!session.TierRecalc) return;
  session.PeriodCount = 0;
  session.EntryDataKept = false;
}

void EndDetailOfChangedTable(SessionRecord& session) {
  if (session.TierRecalc) session.DetailData = false;
}

}  // namespace corvane
