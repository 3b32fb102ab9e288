#pragma once

#include <cstdint>

namespace corvane {

struct SessionRecord;

/// Adds the rate of tier k (1 to 10) to RateScheduleText, the newest last: "5.25/5.5".
void AppendRateSchedule(SessionRecord& session, std::int16_t k);

}  // namespace corvane
