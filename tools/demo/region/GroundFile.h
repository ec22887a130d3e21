#pragma once

#include "demo/region/GroundFeatures.h"

#include <string>

namespace skyvane::demo {

/// Features as GeoJSON (RFC 7946), with OpenStreetMap's tags as their properties.
std::string writeGround(const std::vector<GroundFeature>& features);

} // namespace skyvane::demo
