#pragma once

namespace skyvane {

// The barometric formula of the standard atmosphere, good to some metres below 11000 m. Pressures in hectopascal,
// altitudes in metres. NaN above 44330 m and for pressures that no atmosphere has.

/// The altitude at which the pressure stands when it is p0 at sea level.
double calcAltitudeFromPressure(double pressure, double seaLevelPressure);
/// The pressure at that altitude when it is p0 at sea level.
double calcPressureFromAltitude(double altitude, double seaLevelPressure);
/// The pressure at sea level when `pressure` stands at that altitude.
double calcSeaLevelPressure(double altitude, double pressure);
/// What an altimeter set to `qnh` shows where one set to the standard pressure shows `pressureAltitude`.
double convertPressureAltitude2MSL(double pressureAltitude, double qnh);

} // namespace skyvane
