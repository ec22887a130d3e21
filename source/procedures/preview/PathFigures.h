#pragma once

namespace skyvane {

// What a pilot reckons with: knots over ground, no wind.

/// Nautical miles; 0 for a rate of 0.
double turnRadiusMiles(double degreesPerSecond, double knots);
/// Of a coordinated turn.
double bankDegrees(double degreesPerSecond, double knots);
/// Of a descent in feet per nautical mile.
double glideAngleDegrees(double feetPerMile);
double descentFeetPerMinute(double feetPerMile, double knots);

} // namespace skyvane
