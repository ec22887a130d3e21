#include "chart/geodesy/Headings.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"

#include <cmath>

namespace skyvane {

double CalcHeading(const irr::core::vector3d<double>& forward, const irr::core::vector3d<double>&) {
    return Angle0to360(std::atan2(forward.X, forward.Z) * DegreesPerRadian);
}

std::string dir2Label(float headingDegrees) {
    const double heading = Angle0to360(static_cast<double>(headingDegrees));
    if (!std::isfinite(heading))
        return "";
    const int tens = static_cast<int>(std::floor(heading / 10.0 + 0.5));
    if (tens == 0)
        return "36";
    return (tens < 10 ? "0" : "") + std::to_string(tens);
}

} // namespace skyvane
