#pragma once

#include <optional>

#include "support/Dates.h"

namespace corvane {

/// Today's date by the computer's clock and time zone.
Date Today();

/// Lets a test choose what Today answers; nothing puts the computer's clock back.
void SetToday(std::optional<Date> date);

}  // namespace corvane
