#pragma once

#include "demo/region/Sites.h"

#include <string>

namespace skyvane::demo {

// The region's airports and navaids as OurAirports' files.

std::string writeAirports(const Sites& sites);
std::string writeRunways(const Sites& sites);
std::string writeFrequencies(const Sites& sites);
std::string writeNavaids(const Landscape& landscape, const Sites& sites);

} // namespace skyvane::demo
