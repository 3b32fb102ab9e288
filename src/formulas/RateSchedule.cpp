#include "formulas/RateSchedule.h"

#include "account/SessionRecord.h"
#include "support/NumberText.h"

namespace corvane {

void AppendRateSchedule(SessionRecord& session, std::int16_t k) {
  std::string& text = session.RateScheduleText;
  if (!text.empty()) text += "/";
  text += FormatPlain(session.TierRate.At(k));
}

}  // namespace corvane
