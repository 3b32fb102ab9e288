#pragma once

#include <stdexcept>
#include <utility>
#include <vector>

namespace corvane {

/// A table with a first index of its own, as the session record keeps them: reading outside the
/// bounds gives an empty value, because an unfilled entry reads as 0 or as an empty text; writing
/// outside the bounds is a defect of the program and throws.
template <class Value>
class Table {
 public:
  Table() = default;
  Table(int first, int last) { Resize(first, last); }

  /// Gives the table the indexes first to last; what it held is discarded.
  void Resize(int first, int last) {
    first_ = first;
    values_.assign(last < first ? 0 : static_cast<std::size_t>(last - first + 1), Value{});
  }

  int First() const { return first_; }
  int Last() const { return first_ + static_cast<int>(values_.size()) - 1; }
  bool Holds(int index) const { return index >= First() && index <= Last(); }

  Value At(int index) const { return Holds(index) ? values_[Position(index)] : Value{}; }

  void Set(int index, Value value) {
    if (!Holds(index)) throw std::out_of_range("table index outside its bounds");
    values_[Position(index)] = std::move(value);
  }

  /// Every entry becomes empty or 0; the bounds stay.
  void Clear() { values_.assign(values_.size(), Value{}); }

 private:
  std::size_t Position(int index) const { return static_cast<std::size_t>(index - first_); }

  int first_ = 1;
  std::vector<Value> values_;
};

}  // namespace corvane
