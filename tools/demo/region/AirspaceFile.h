#pragma once

#include "demo/region/Sites.h"

#include <string>

namespace skyvane::demo {

/// The region's airspaces in the OpenAir format, one inside of the other as round a real airport.
std::string writeAirspaces(const Sites& sites);

} // namespace skyvane::demo
