# Writes the header RECORD about the compiled HELP_FILE.
file(SIZE ${HELP_FILE} size)
file(SHA256 ${HELP_FILE} digest)
file(WRITE ${RECORD} "#pragma once

namespace corvane {

/// The help file that was built with this program.
inline constexpr long long kHelpFileSize = ${size};
inline constexpr const char* kHelpFileSha256 = \"${digest}\";

}  // namespace corvane
")
