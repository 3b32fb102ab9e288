#pragma once

#include <gtest/gtest.h>

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

/// "field: message" of a refusal, "ok" for none.
inline std::string Said(const std::optional<Refusal>& refusal) {
  return refusal ? refusal->field + ": " + refusal->text : "ok";
}

/// Chooses an option or types into a field, by the name of its control; false for an unknown one.
template <class Values>
bool Put(Values& values, const std::string& name, const std::string& text) {
  for (const auto& known : Values::Fields()) {
    if (name != known.control) continue;
    (values.*known.field).text = text;
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

template <class Values>
std::string TextOf(const Values& values, const std::string& name) {
  for (const auto& known : Values::Fields()) {
    if (name == known.control) return (values.*known.field).text;
  }
  return "no field " + name;
}

/// Words "name=text" or "name" as pairs.
inline std::vector<std::pair<std::string, std::string>> NamesAndTexts(const std::string& words) {
  std::vector<std::pair<std::string, std::string>> pairs;
  std::istringstream stream(words);
  for (std::string word; stream >> word;) {
    const std::size_t equals = std::min(word.find('='), word.size());
    pairs.emplace_back(word.substr(0, equals), equals < word.size() ? word.substr(equals + 1) : "");
  }
  return pairs;
}

/// A line "txtTerm=0 txtBal=1|2 -> said -> txtTerm=365": what is changed, what is then said, and
/// what fields then hold. Of several values of the last field each one has to do.
inline void RunCheck(std::string line, const CheckedValues& values) {
  for (std::size_t at; (at = line.find(" -> ")) != line.npos;) line.replace(at, 4, "\n");
  auto parts = SplitAt(line, '\n');
  parts.resize(3);
  const auto changes = NamesAndTexts(parts[0]);
  for (const auto& change : changes) {
    for (const std::string& text : SplitAt(change.second + "|", '|')) {
      EXPECT_TRUE(values.put(change.first, text)) << change.first;
      if (parts[1].empty() || &change != &changes.back()) continue;
      EXPECT_EQ(values.said(), parts[1]) << change.first << "=" << text;
      for (const auto& [name, shown] : NamesAndTexts(parts[2])) {
        EXPECT_EQ(values.shown(name), shown) << name;
      }
    }
  }
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
    checks += line.find(" -> ") != line.npos;
  }
  EXPECT_GT(checks, 5) << path << " is missing or cut short";
}

}  // namespace corvane
