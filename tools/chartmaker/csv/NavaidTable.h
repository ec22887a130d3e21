#pragma once

#include "chartmaker/compile/SourceKind.h"

namespace skyvane {

/// Reads navaids.csv of OurAirports into the sink. A DME alone, for which charts have no kind, becomes a fix whose
/// remarks tell its channel. False when the file can't be read.
bool readNavaidTable(const std::string& path, const SourceContext& context);

} // namespace skyvane
