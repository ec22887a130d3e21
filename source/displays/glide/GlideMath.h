#pragma once

namespace skyvane {

/// The arithmetic of the glide computers. A gradient is metres of height lost for a metre flown: positive when sinking.

/// In place of a gradient: too slow over the ground to have one.
constexpr double noGradient = 10000.0;
/// In place of the best one: the aircraft's isn't known.
constexpr double noBestGradient = -4.0;
/// In place of an altitude: there is none.
constexpr double noAltitudeAbove = -999999.0;

/// Knots over the ground, metres per second upwards; noGradient below 5 knots.
double glideGradient(double groundSpeedKnots, double verticalSpeed);
/// Of an aircraft that flies that many metres for each metre of height; noBestGradient for 0 and below.
double bestGradient(double inverseGlideRatio);

/// Metres above the destination on arrival, when each metre flown costs the gradient times the multiplier.
/// noAltitudeAbove for a gradient that never reaches the ground or is none.
double altitudeAbove(double gradient, double multiplier, double altitudeMetres, double distanceNauticalMiles,
                     double elevationFeet);

/// Metres flown for each metre of height lost, negative in a climb; 0 stands for none: the vertical speed is 0.
double glideRatio(double groundSpeedKnots, double verticalSpeed);

/// Metres above the sea on arrival; false, and nothing else, for a ratio below 1 and without distance or altitude.
bool glideAltitude(double altitudeMetres, double distanceNauticalMiles, double inverseGlideRatio, double& metres);

} // namespace skyvane
