#pragma once

#include <cmath>

namespace skyvane {

/// The bell curve's height at x, 1 in the middle.
inline double gauss(double x, double sigma) {
    const double ratio = x / sigma;
    return std::exp(-0.5 * ratio * ratio);
}

} // namespace skyvane
