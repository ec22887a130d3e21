#pragma once

#include <cstdint>

namespace skyvane {

/// The colour that says how far the aircraft is above something, in metres: red up to 137, yellow there, green from 229
/// on; opaque. What is no number is red.
uint32_t clearanceColor(double metresAbove);

/// Whether anything of that altitude may change its colour between two altitudes of the aircraft; all in metres.
bool canClearanceColorChange(double altitude, double fromAltitude, double toAltitude);

} // namespace skyvane
