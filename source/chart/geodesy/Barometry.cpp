#include "chart/geodesy/Barometry.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr double ScaleHeightMetres = 44330.0;
constexpr double StandardPressure = 1013.25;
constexpr double PressureExponent = 5.255;
/// The inverse of the exponent.
constexpr double AltitudeExponent = 0.19029495718363465;

} // namespace

double calcAltitudeFromPressure(double pressure, double seaLevelPressure) {
    return (1.0 - std::pow(pressure / seaLevelPressure, AltitudeExponent)) * ScaleHeightMetres;
}

double calcPressureFromAltitude(double altitude, double seaLevelPressure) {
    return std::pow(1.0 - altitude / ScaleHeightMetres, PressureExponent) * seaLevelPressure;
}

double calcSeaLevelPressure(double altitude, double pressure) {
    return std::pow(1.0 - altitude / ScaleHeightMetres, -PressureExponent) * pressure;
}

double convertPressureAltitude2MSL(double pressureAltitude, double qnh) {
    return calcAltitudeFromPressure(calcPressureFromAltitude(pressureAltitude, StandardPressure), qnh);
}

} // namespace skyvane
