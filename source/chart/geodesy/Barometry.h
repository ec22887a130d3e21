#pragma once

namespace skyvane {

// The barometric formula of the standard atmosphere. Pressures in hectopascal, altitudes in metres.

/// The altitude at which the pressure stands when it is p0 at sea level.
double calcAltitudeFromPressure(double pressure, double seaLevelPressure);
/// The pressure at sea level when `pressure` stands at that altitude.
double calcSeaLevelPressure(double altitude, double pressure);

} // namespace skyvane
