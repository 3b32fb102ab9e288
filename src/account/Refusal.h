#pragma once

#include <string>

namespace corvane {

enum class MessageIcon { None, Exclamation };

inline constexpr const char* kKeyEntryError = "Key Entry Error";

/// Why an operation was not carried out: what the message box says and which field gets the focus
/// (its control name, empty for none). The core returns refusals; windows show them.
struct Refusal {
  std::string text;
  std::string field;
  std::string title = kKeyEntryError;
  MessageIcon icon = MessageIcon::Exclamation;
};

}  // namespace corvane
