#include "flightfeed/flight/StandardAtmosphere.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double TROPOPAUSE_METRES = 11000.0;
constexpr double SEA_LEVEL_KELVIN = 288.15;
constexpr double LAPSE_KELVIN_PER_METRE = 0.0065;
constexpr double PRESSURE_EXPONENT = 5.25588;        // g / (R * lapse rate)
constexpr double SCALE_PER_KELVIN_METRE = 0.0341632; // g / R

double kelvin(double altitudeMetres) {
    return SEA_LEVEL_KELVIN - LAPSE_KELVIN_PER_METRE * std::min(altitudeMetres, TROPOPAUSE_METRES);
}

} // namespace

double standardPressureMillibars(double altitudeMetres) {
    const double temperature = kelvin(altitudeMetres);
    const double troposphere = 1013.25 * std::pow(temperature / SEA_LEVEL_KELVIN, PRESSURE_EXPONENT);
    const double above = std::max(0.0, altitudeMetres - TROPOPAUSE_METRES);
    return troposphere * std::exp(-SCALE_PER_KELVIN_METRE * above / temperature);
}

double standardTemperatureCelsius(double altitudeMetres) {
    return kelvin(altitudeMetres) - 273.15;
}

double standardDensityRatio(double altitudeMetres) {
    return standardPressureMillibars(altitudeMetres) / 1013.25 * SEA_LEVEL_KELVIN / kelvin(altitudeMetres);
}

} // namespace skyvane
