#pragma once

#include <optional>

#include "account/Refusal.h"

namespace corvane {

struct SessionRecord;

/// Computes the stored periods 1 to PeriodCount of a stepped-rate account anew and fills their
/// report rows (Regulation DD, Appendix A, Part I.B): the interest of all of them, and the APY on
/// the first balance over their whole term. What earlier periods earned stays in the account where
/// interest compounds and need not be withdrawn. The APY and its verdict stand in the newest row
/// only, because the APY of a part of the term is not the account's.
std::optional<Refusal> ComputeStepped(SessionRecord& session);

}  // namespace corvane
