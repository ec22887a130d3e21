#pragma once

#include "demo/region/Sites.h"

#include <string>

namespace skyvane::demo {

// The region's fixes and airways as X-Plane's earth_fix.dat and earth_awy.dat.

std::string writeFixes();
std::string writeAirways();

} // namespace skyvane::demo
