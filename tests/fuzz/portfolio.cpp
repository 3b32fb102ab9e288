#include "Fuzz.h"
#include "portfolio/PortfolioRun.h"

using namespace corvane;

namespace {

std::string TextOf(const std::string& accounts, const std::string& balances, int threads) {
  DayReader days(CsvSourceOf(balances));
  AccountReader reader(CsvSourceOf(accounts), &days);
  std::string text;
  std::size_t count = 0;
  const std::atomic<bool> cancel = false;
  RunPortfolio(reader, {.threads = threads}, cancel, [&](const CheckedBatch& batch) {
    DEMAND(batch.outcomes.size() == batch.accounts.Size());
    text += batch.text;
    count += batch.outcomes.size();
    return true;
  });
  DEMAND(count <= accounts.size());
  return text;
}

}  // namespace

/// A file of accounts and, behind a byte 0, one of daily balances.
int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
  const std::string all(reinterpret_cast<const char*>(data), size);
  const auto parted = std::min(all.find('\0'), all.size());
  const std::string accounts = all.substr(0, parted);
  const std::string balances = parted == all.size() ? "" : all.substr(parted + 1);
  DEMAND(TextOf(accounts, balances, 1) == TextOf(accounts, balances, 1));
  return 0;
}
