#include "Act.h"

#include <random>
#include <sstream>

namespace corvane {

namespace {

struct Habit {
  Deed deed;
  const char* name;
  int weight;
};

constexpr Habit kHabits[] = {
    {Deed::FillWindow, "FillWindow", 22},
    {Deed::TypeSensible, "TypeSensible", 14},
    {Deed::TypeAnything, "TypeAnything", 8},
    {Deed::Paste, "Paste", 6},
    {Deed::Click, "Click", 14},
    {Deed::DoubleClick, "DoubleClick", 3},
    {Deed::Choose, "Choose", 6},
    {Deed::PickFromList, "PickFromList", 2},
    {Deed::Menu, "Menu", 4},
    {Deed::AccessKeys, "AccessKeys", 5},
    {Deed::Key, "Key", 12},
    {Deed::Resize, "Resize", 1},
    {Deed::Drop, "Drop", 1},
    {Deed::CloseFrame, "CloseFrame", 1},
    {Deed::Wait, "Wait", 2},
};

}  // namespace

std::vector<Act> ActsOf(std::uint32_t seed, int count) {
  std::mt19937 chance(seed);
  std::vector<Deed> deeds;
  for (const Habit& habit : kHabits) {
    deeds.insert(deeds.end(), static_cast<std::size_t>(habit.weight), habit.deed);
  }
  std::vector<Act> acts;
  for (int i = 0; i < count; ++i) {
    const Deed deed = deeds[chance() % deeds.size()];
    const auto where = static_cast<std::uint32_t>(chance());
    acts.push_back({deed, where, static_cast<std::uint32_t>(chance())});
  }
  return acts;
}

std::string TextOf(const Act& act) {
  for (const Habit& habit : kHabits) {
    if (habit.deed != act.deed) continue;
    return std::string(habit.name) + " " + std::to_string(act.where) + " " +
           std::to_string(act.what);
  }
  return {};
}

Act ActFrom(const std::string& text) {
  std::istringstream words(text);
  std::string name;
  Act act;
  words >> name >> act.where >> act.what;
  for (const Habit& habit : kHabits) {
    if (name == habit.name) act.deed = habit.deed;
  }
  return act;
}

}  // namespace corvane
