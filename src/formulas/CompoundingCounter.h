#pragma once

namespace corvane {

/// Says on which days earlier interest earns interest: with compounding every N days, on the first
/// earning day after each N of them. Without compounding (N = 0) never.
class CompoundingCounter {
 public:
  explicit CompoundingCounter(int compoundingDays) : period_(compoundingDays) {}

  /// Takes the next earning day; true when the interest so far counts as balance on it.
  bool NextDayCompounds() {
    const bool compounds = period_ > 0 && days_ == period_;
    if (compounds) days_ = 0;
    ++days_;
    return compounds;
  }

 private:
  int period_;
  int days_ = 0;
};

}  // namespace corvane
