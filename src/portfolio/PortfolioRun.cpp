#include "portfolio/PortfolioRun.h"

#include <oneapi/tbb/concurrent_queue.h>
#include <oneapi/tbb/global_control.h>
#include <oneapi/tbb/parallel_pipeline.h>
#include <oneapi/tbb/task_arena.h>

#include "portfolio/ResultRows.h"

namespace corvane {

namespace {

constexpr std::size_t kRowsOfBatch = 256;

bool IsWritten(const AccountOutcome& outcome, Only only) {
  return only == Only::All || (only == Only::Violations && outcome.isViolation) ||
         (only == Only::Refused && outcome.isRefused);
}

void CheckBatch(CheckedBatch& batch, const PortfolioHeader& header, Only only) {
  for (std::size_t index = 0; index < batch.accounts.Size(); ++index) {
    const AccountRows account = batch.accounts.Account(index);
    const AccountOutcome& outcome = batch.outcomes.emplace_back(CheckAccount(account));
    if (IsWritten(outcome, only)) AppendResults(batch.text, header, account, outcome);
  }
}

}  // namespace

void RunPortfolio(AccountReader& reader, const RunOptions& options, const std::atomic<bool>& cancel,
                  const std::function<bool(const CheckedBatch&)>& take) {
  using Batch = std::shared_ptr<CheckedBatch>;
  using tbb::filter_mode;
  std::atomic<bool> stopped = false;
  tbb::concurrent_queue<Batch> written;  // to be filled again: their memory stays
  const auto read = tbb::make_filter<void, Batch>(
      filter_mode::serial_in_order, [&](tbb::flow_control& control) -> Batch {
        Batch batch;
        if (!written.try_pop(batch)) batch = std::make_shared<CheckedBatch>();
        const bool goes = !stopped && !cancel && reader.Read(batch->accounts, kRowsOfBatch);
        // A source that is cancelled may end in the middle of a row.
        if (!goes || cancel) control.stop();
        // The reader goes on while the batch is taken, so the batch itself says how far it reaches.
        batch->bytesRead = reader.BytesRead();
        return batch;
      });
  const auto check = tbb::make_filter<Batch, Batch>(filter_mode::parallel, [&](Batch batch) {
    CheckBatch(*batch, reader.Header(), options.only);
    return batch;
  });
  const auto write =
      tbb::make_filter<Batch, void>(filter_mode::serial_in_order, [&](const Batch& batch) {
        if (!stopped && !take(*batch)) stopped = true;
        batch->Clear();
        written.push(batch);
      });
  const auto threads = static_cast<std::size_t>(options.threads);
  const tbb::global_control limit(tbb::global_control::max_allowed_parallelism, threads);
  tbb::task_arena arena(options.threads);
  arena.execute([&] { tbb::parallel_pipeline(2 * threads + 1, read & check & write); });
}

}  // namespace corvane
