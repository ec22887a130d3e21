#include "displays/informationmath/SideAxes.h"

#include <cmath>

namespace skyvane {
namespace {

/// Of the window: the aircraft flies from its first to its second such part, then the window moves on by one.
constexpr double windowStep = 0.1;

} // namespace

SideWindow lookAhead(size_t points, double stepMetres, double ownIndex, double lengthMetres) {
    const auto all = static_cast<double>(points);
    const double shown = stepMetres > 0.0 ? lengthMetres / stepMetres : all;
    if (!(shown < all))
        return {0.0, all};
    const double step = windowStep * shown;
    const double first = (std::floor((std::isfinite(ownIndex) ? ownIndex : 0.0) / step) - 1.0) * step;
    return {std::clamp(first, 0.0, all - shown), shown};
}

} // namespace skyvane
