#include "displays/gauges/Needles.h"

#include "chart/geodesy/Angles.h"

#include <cmath>

namespace skyvane {

AltimeterHands calcAltimeterHands(double altitude) {
    const auto rotation = [altitude](double unit) { return -36.0 * Angle0to360(altitude / unit); };
    return {rotation(100.0), rotation(1000.0), rotation(10000.0)};
}

double calcVerticalSpeedAngle(double feetPerMinute) {
    return std::copysign(180.0 * (1.0 - std::exp(-0.00046209812033333334 * std::abs(feetPerMinute))), feetPerMinute);
}

double calcVerticalSpeedRotation(double feetPerMinute) {
    return 90.0 - calcVerticalSpeedAngle(feetPerMinute);
}

double toFeetPerMinute(double metresPerSecond) {
    return metresPerSecond / metresPerFoot * 60.0;
}

double calcRotationToPointer(irr::core::vector2d<int> centre, irr::core::vector2d<int> pointer) {
    const double left = static_cast<double>(centre.X) - pointer.X;
    const double above = static_cast<double>(centre.Y) - pointer.Y;
    return std::atan2(left, above) * 57.29577951308232;
}

} // namespace skyvane
