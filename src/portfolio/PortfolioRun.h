#pragma once

#include <atomic>
#include <functional>

#include "portfolio/AccountOutcome.h"
#include "portfolio/AccountReader.h"

namespace corvane {

/// Accounts and what came of them.
struct CheckedBatch {
  AccountBatch accounts;
  std::vector<AccountOutcome> outcomes;  ///< one for each account
  std::string text;                      ///< the rows as the run writes them
  std::size_t bytesRead = 0;             ///< of the file, up to the batch's end

  /// Empties it, keeping its memory for the next accounts.
  void Clear() {
    accounts.Clear();
    outcomes.clear();
    text.clear();
  }
};

/// Which accounts the run writes: all, those with a violation, or those that were refused.
enum class Only { All, Violations, Refused };

struct RunOptions {
  int threads = 1;
  Only only = Only::All;
};

/// Checks all accounts of a file by so many threads. Batches come to `take` in the order of the
/// file, one after the other, in which thread ever; it returns false to stop. What it gets does not
/// depend on the number of threads. `cancel` may be set at any time; what was read by then and is
/// complete still comes. Memory does not grow with the file.
void RunPortfolio(AccountReader& reader, const RunOptions& options, const std::atomic<bool>& cancel,
                  const std::function<bool(const CheckedBatch&)>& take);

}  // namespace corvane
