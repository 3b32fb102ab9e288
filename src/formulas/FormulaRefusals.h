#pragma once

#include "support/Refusal.h"

namespace corvane {

/// The entries lead to no finite figure.
inline Refusal NotComputable() {
  return {.text = "The entries give a result that cannot be computed. Please correct them.",
          .field = {}};
}

}  // namespace corvane
