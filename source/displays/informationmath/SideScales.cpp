#include "displays/informationmath/SideScales.h"

#include <cmath>
#include <initializer_list>

namespace skyvane {

double chooseScaleStep(double unitsPerPixel, double leastPixels, double least) {
    const double wanted = unitsPerPixel * leastPixels;
    if (!(wanted > 0.0) || !std::isfinite(wanted))
        return 0.0;
    const double power = std::pow(10.0, std::floor(std::log10(wanted)));
    for (const double factor : {1.0, 2.0, 5.0, 10.0})
        if (factor * power >= wanted * (1.0 - 1e-9))
            return std::fmax(least, factor * power);
    return least;
}

} // namespace skyvane
