#include "formulas/CompoundingInterval.h"

#include "account/SessionRecord.h"

namespace corvane {

double CompoundingInterval(SessionRecord& session) {
  if (session.CompoundingDays < 1) session.CompoundingDays = 1;
  return session.CompoundingDays;
}

}  // namespace corvane
