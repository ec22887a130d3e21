#pragma once

#include <string_view>

namespace skyvane {

/// Where a piece of source data stands.
struct SourceLine {
    std::string_view file; ///< As named on the command line. Who is handed it copies what it keeps.
    long number = 0;       ///< From 1 on; 0 for the file as a whole.
};

} // namespace skyvane
