#pragma once

#include <optional>

#include "account/Refusal.h"

namespace corvane {

struct SessionRecord;

/// Computes every tier from its stored entry and its rate in the tier table, and fills one report
/// row per tier (Regulation DD, Appendix A, Part I.D, method A).
std::optional<Refusal> ComputeTiersByMethodA(SessionRecord& session);

/// Computes every tier end: the whole deposit up to there, each tier's share earning its own rate,
/// and fills one report row per tier end (Regulation DD, Appendix A, Part I.D, method B).
std::optional<Refusal> ComputeTiersByMethodB(SessionRecord& session);

}  // namespace corvane
