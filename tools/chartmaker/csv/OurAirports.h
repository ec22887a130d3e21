#pragma once

#include "chartmaker/compile/SourceKind.h"

namespace skyvane {

/// Reads a folder with the tables of OurAirports, each plain or with ".gz" behind its name: airports.csv, and where
/// they are there runways.csv, airport-frequencies.csv and navaids.csv. False when one can't be read.
bool readOurAirports(const std::string& folder, const SourceContext& context);

} // namespace skyvane
