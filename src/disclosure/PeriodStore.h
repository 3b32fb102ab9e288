#pragma once

#include "disclosure/DisclosureEntry.h"

namespace corvane {

struct SessionRecord;

/// Stores an entry in the period tables at an index from 1. What is no number is stored as 0, what
/// is no date as none.
void StoreEntry(SessionRecord& session, int index, const DisclosureEntry& entry);

/// The stored entry of a period as the fields show it: money with two decimals, rates with two to
/// four, a value of 0 as an empty field, a missing date as the empty mask. The number of periods
/// is not part of it, and all fields are enabled.
DisclosureEntry StoredEntry(const SessionRecord& session, int index);

/// The figures of a stored period that a computation is given.
struct PeriodFigures {
  double disclosedApy = 0;
  double rate = 0;
  double balance = 0;
  double term = 0;
  std::string factor;
};

/// Puts a stored period's figures into the record where the formulas read them, and gives those
/// that they take as arguments.
PeriodFigures UseStoredPeriod(SessionRecord& session, int index);

}  // namespace corvane
