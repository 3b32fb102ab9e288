#pragma once

namespace corvane {

struct SessionRecord;

/// N, the days, months or years of one compounding period. An N below 1 counts as 1, which is then
/// stored in CompoundingDays.
double CompoundingInterval(SessionRecord& session);

}  // namespace corvane
