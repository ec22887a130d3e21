#include "displays/mapmath/elements/ClearanceColor.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double marginMetres = 46.0;
constexpr double redSpanMetres = 91.5;
constexpr double greenSpanMetres = 61.0;

uint32_t byteOf(double share) {
    return static_cast<uint32_t>(std::lround(std::clamp(share, 0.0, 1.0) * 255.0));
}

} // namespace

uint32_t clearanceColor(double metresAbove) {
    if (std::isnan(metresAbove))
        return 0xffff0000;
    const double above = metresAbove - marginMetres;
    return 0xff000000 | byteOf(2.0 - above / redSpanMetres) << 16 | byteOf(above / greenSpanMetres - 0.5) << 8;
}

bool canClearanceColorChange(double altitude, double fromAltitude, double toAltitude) {
    return clearanceColor(fromAltitude - altitude) != clearanceColor(toAltitude - altitude);
}

} // namespace skyvane
