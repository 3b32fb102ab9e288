#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace corvane {

/// What a person may do at the windows.
enum class Deed {
  FillWindow,  ///< type something sensible into every field, then press the button that goes on
  TypeSensible,
  TypeAnything,
  Paste,
  Click,
  DoubleClick,
  Choose,
  PickFromList,
  Menu,
  AccessKeys,  ///< two at once
  Key,
  Resize,
  Drop,
  CloseFrame,
  Wait,
};

/// One act. What it is done to and with is chosen by two numbers among what is there at the time,
/// so that an act means something in any state.
struct Act {
  Deed deed = Deed::Wait;
  std::uint32_t where = 0;
  std::uint32_t what = 0;
};

/// The acts of a person who is known by a number.
std::vector<Act> ActsOf(std::uint32_t seed, int count);

/// "Click 12 7", and back; a text that is none gives Wait.
std::string TextOf(const Act& act);
Act ActFrom(const std::string& text);

}  // namespace corvane
