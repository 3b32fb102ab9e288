#include "formulas/CheckApy.h"

#include <cmath>

#include "shell/SessionRecord.h"

namespace corvane {

void CheckApy(SessionRecord& session, double disclosedApy, double computedApy) {
  const bool within = std::fabs(disclosedApy - computedApy) <= 0.05 + 1e-9;
  session.ApyVerdict = within ? "OK" : "APY VIOLATION";
}

}  // namespace corvane
