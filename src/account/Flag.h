#pragma once

#include <cstdint>

namespace corvane {

/// A Boolean of the session record: two bytes that hold -1 for True and 0 for False and nothing
/// else, so that a test for non-zero and a test for -1 always agree.
class Flag {
 public:
  constexpr Flag() = default;
  constexpr Flag(bool value) : value_(value ? std::int16_t{-1} : std::int16_t{0}) {}
  template <class Number>
  Flag(Number) = delete;

  constexpr operator bool() const { return value_ != 0; }
  constexpr std::int16_t Stored() const { return value_; }

 private:
  std::int16_t value_ = 0;
};

static_assert(sizeof(Flag) == 2);

}  // namespace corvane
