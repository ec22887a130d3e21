#include "displays/gauges/LoadGauge.h"

#include <cmath>

namespace skyvane {

double calcLoad(double upMetresPerSecondSquared) {
    return -upMetresPerSecondSquared / 9.81;
}

double calcLoadRotation(double load) {
    if (std::abs(load) < 5.0)
        return 90.0 - 27.0 * load;
    return 90.0 - std::copysign(180.0 - 903.8492 * std::exp(-0.6 * std::abs(load)), load);
}

} // namespace skyvane
