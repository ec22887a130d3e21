#pragma once

#include <cstdint>

namespace skyvane {

/// The colour of something by how far its top lies below the aircraft, ARGB, opaque: red level with it and above, green
/// far below, orange and yellow between.
uint32_t altitudeTint(double metresBelow);

} // namespace skyvane
