#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "CaseTable.h"
#include "account/Field.h"
#include "account/Refusal.h"

namespace corvane {

/// What a table of checks acts on.
struct CheckedValues {
  std::function<void()> begin;  ///< begins with a new account
  /// Chooses an option or types into a field; false for an unknown one.
  std::function<bool(const std::string& name, const std::string& text)> put;
  std::function<std::string()> said;                          ///< see Said
  std::function<std::string(const std::string& name)> shown;  ///< what a field then holds
};

/// "field: message" of a refusal, "ok" for none; a new line reads "\\n".
inline std::string Said(const std::optional<Refusal>& refusal) {
  if (!refusal) return "ok";
  std::string text = refusal->field + ": " + refusal->text;
  for (std::size_t at; (at = text.find('\n')) != text.npos;) text.replace(at, 1, "\\n");
  return text;
}

/// The notice stands before the refusal.
inline std::string Said(const CheckOutcome& outcome) {
  return (outcome.notice ? Said(outcome.notice) + " & " : "") + Said(outcome.refusal);
}

/// Chooses an option or types into a field, by the name of its control; false for an unknown one.
template <class Values>
bool Put(Values& values, const std::string& name, const std::string& text) {
  for (const auto& known : Values::Fields()) {
    if (name != known.control) continue;
    (values.*known.field).text = text;
    (values.*known.field).workedOut = false;
    return true;
  }
  if constexpr (requires { Values::Options(); }) {
    for (const auto& known : Values::Options()) {
      if (name != known.control) continue;
      known.choose(values);
      return true;
    }
  }
  return false;
}

/// What a field or option shows, such as "5", "(off)" for an empty field that is not enabled, or
/// "chosen".
template <class Values>
std::string ShownBy(const Values& values, const std::string& name) {
  for (const auto& known : Values::Fields()) {
    const Field& field = values.*known.field;
    if (name == known.control) return field.text + (field.enabled ? "" : "(off)");
  }
  if constexpr (requires { Values::Options(); }) {
    for (const auto& known : Values::Options()) {
      if (name == known.control) return known.isChosen(values) ? "chosen" : "open";
    }
  }
  return "no control " + name;
}

/// Words "name=text" or "name" as pairs; "~" stands for a blank of the text.
inline std::vector<std::pair<std::string, std::string>> NamesAndTexts(std::string words) {
  std::vector<std::pair<std::string, std::string>> pairs;
  std::istringstream stream(words);
  for (std::string word; stream >> word;) {
    std::ranges::replace(word, '~', ' ');
    const std::size_t equals = std::min(word.find('='), word.size());
    pairs.emplace_back(word.substr(0, equals), equals < word.size() ? word.substr(equals + 1) : "");
  }
  return pairs;
}

/// Cuts a line at a mark: what stands before stays, what stands behind is returned.
inline std::string CutAt(std::string& line, const std::string& mark) {
  const std::size_t at = std::min(line.find(mark), line.size());
  const std::string behind = line.substr(std::min(at + mark.size(), line.size()));
  line.resize(at);
  return behind;
}

/// A line "txtTerm=0 txtBal=1|2 -> said => txtTerm=365": what is changed, what is then said, and
/// what is then shown; either may be missing. Of several texts of a field each has to do.
inline void RunCheck(std::string line, const CheckedValues& values) {
  const auto expected = NamesAndTexts(CutAt(line, " => "));
  const std::string said = CutAt(line, " -> ");
  auto changes = NamesAndTexts(line);
  const auto hasTexts = [](const auto& change) {
    return change.second.find('|') != change.second.npos;
  };
  const auto varied = std::ranges::find_if(changes, hasTexts);
  const auto texts = SplitAt((varied == changes.end() ? "" : varied->second) + "|", '|');
  for (const std::string& text : texts) {
    if (varied != changes.end()) varied->second = text;
    for (const auto& [name, own] : changes) EXPECT_TRUE(values.put(name, own)) << name;
    if (!said.empty()) {
      EXPECT_EQ(values.said(), said) << text;
    }
    for (const auto& [name, shown] : expected) EXPECT_EQ(values.shown(name), shown) << name;
  }
}

/// The table of a person who begins anew with each account.
template <class Person>
CheckedValues TableOf(Person& person) {
  return {.begin = [&person] { person = {}; },
          .put = [&person](auto& name, auto& text) { return person.Put(name, text); },
          .said = [&person] { return person.Answer(); },
          .shown = [&person](auto& name) { return person.Shown(name); }};
}

/// Goes through a table of checks. A line that is not indented begins with a new account.
inline void RunChecks(const std::string& table, const CheckedValues& values) {
  const std::string path = CORVANE_TESTS + table;
  std::ifstream file(path);
  int number = 0, checks = 0;
  for (std::string line; std::getline(file, line);) {
    ++number;
    if (Trim(line).empty() || line.front() == '#') continue;
    const ::testing::ScopedTrace trace(path.c_str(), number, line);
    if (line.front() != ' ') values.begin();
    RunCheck(line, values);
    checks += line.find("> ") != line.npos;
  }
  EXPECT_GT(checks, 5) << path << " is missing or cut short";
}

}  // namespace corvane
