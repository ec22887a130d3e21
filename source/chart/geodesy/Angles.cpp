#include "chart/geodesy/Angles.h"

#include <cmath>

namespace skyvane {

double Angle0to360(double degrees) {
    const double wrapped = std::fmod(degrees, 360.0);
    if (!(wrapped < 0.0))
        return wrapped;
    const double raised = wrapped + 360.0;
    return raised < 360.0 ? raised : 0.0; // a tiny negative number rounds up to 360
}

double Angle180(double degrees) {
    const double wrapped = std::fmod(degrees, 360.0);
    if (wrapped > 180.0)
        return wrapped - 360.0;
    return wrapped < -180.0 ? wrapped + 360.0 : wrapped;
}

double Latitudinize(double degrees) {
    const double wrapped = Angle180(degrees);
    if (wrapped > 90.0)
        return 180.0 - wrapped;
    return wrapped < -90.0 ? -180.0 - wrapped : wrapped;
}

} // namespace skyvane
