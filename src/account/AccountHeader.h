#pragma once

#include <string>

namespace corvane {

/// The four identification texts that the setup windows show and the reports print. Disclosures
/// have no account number of their own.
struct AccountHeader {
  std::string institution;
  std::string description;
  std::string holder;
  std::string number;

  /// What stays for the next account of the same institution.
  AccountHeader OfNextAccount() const { return {institution, "", "", ""}; }
};

}  // namespace corvane
