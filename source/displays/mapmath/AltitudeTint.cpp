#include "displays/mapmath/AltitudeTint.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

/// As near as that counts as level.
constexpr double levelMetres = 46.0;
constexpr double redMetres = 91.5;
constexpr double greenMetres = 61.0;

uint32_t channel(double share) {
    return static_cast<uint32_t>(std::clamp(share, 0.0, 1.0) * 255.0);
}

} // namespace

uint32_t altitudeTint(double metresBelow) {
    const double d = std::isfinite(metresBelow) ? metresBelow - levelMetres : 0.0;
    return 0xff000000u | channel(2.0 - d / redMetres) << 16 | channel(d / greenMetres - 0.5) << 8;
}

} // namespace skyvane
