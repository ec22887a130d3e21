#pragma once

namespace skyvane {

/// ISA, troposphere and lower stratosphere, 1013.25 mb and 15 degrees at sea level. Geopotential altitude is taken
/// for geometric altitude.
double standardPressureMillibars(double altitudeMetres);
double standardTemperatureCelsius(double altitudeMetres);

/// Air density as a part of that at sea level. Its square root is indicated over true airspeed, as long as
/// compressibility is nothing to speak of (0.1 knots at 150 knots and 3000 m).
double standardDensityRatio(double altitudeMetres);

} // namespace skyvane
