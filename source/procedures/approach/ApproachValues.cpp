#include "procedures/approach/ApproachValues.h"

#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

/// What charts may say of an airport, in feet; beyond that none lies.
constexpr int LowestElevation = -2000;
constexpr int HighestElevation = 30000;

} // namespace

void ApproachValues::setElevation(int feet) {
    elevation_ = std::clamp(feet, LowestElevation, HighestElevation);
    descentRate_ = UsualRate;
}

void ApproachValues::setUsual(int lengthMiles) {
    finalLength_ = lengthMiles;
    descentRate_ = UsualRate;
    fafAltitude_ = static_cast<int>(std::floor((lengthMiles * UsualRate + elevation_) / 100.0 + 0.5)) * 100;
    updateDescentRate();
}

void ApproachValues::setFinalLength(int miles) {
    finalLength_ = miles;
    fafAltitude_ = roundHalfAway((descentRate_ * miles + elevation_) / 100.0) * 100;
    updateDescentRate();
}

void ApproachValues::setFafAltitude(int feet) {
    fafAltitude_ = feet;
    updateDescentRate();
}

/// A final without length has no rate of its own: the rate stays for the next one.
void ApproachValues::updateDescentRate() {
    if (finalLength_ > 0)
        descentRate_ = roundHalfAway((fafAltitude_ - elevation_) * 0.1 / finalLength_) * 10;
}

double ApproachValues::fafAltitudeMetres(double leastMiles) const {
    return std::max(descentRate_ * leastMiles + elevation_, static_cast<double>(fafAltitude_)) * MetresPerFoot;
}

} // namespace skyvane
