#pragma once

#include <algorithm>
#include <cmath>

namespace skyvane {

/// A scale that moves past a fixed pointer: where a value stands in pixels, and which marks are in view.
struct Tape {
    double value = 0.0; ///< Under the pointer, in the middle.
    double range = 1.0; ///< Units over the whole length, above 0.
    double low = 0.0;   ///< Pixel of the low end: the bottom or the left.
    double high = 0.0;  ///< Pixel of the high end.

    double getMiddle() const { return 0.5 * (low + high); }
    double getPixelsPerUnit() const { return std::abs(high - low) / range; }
    double at(double mark) const { return getMiddle() + (mark - value) / range * (high - low); }
    /// The same, not beyond the ends.
    double clampedAt(double mark) const { return std::clamp(at(mark), std::min(low, high), std::max(low, high)); }

    /// Multiples of a step in view, as numbers of steps, one more at each end since numbers have a height.
    long long getFirstStep(double step) const {
        return static_cast<long long>(std::floor((value - 0.5 * range) / step));
    }
    long long getLastStep(double step) const { return static_cast<long long>(std::ceil((value + 0.5 * range) / step)); }
};

/// The step times 1, 2, 5, 10, 20 ...: the first one whose marks stand at least so many pixels apart.
double chooseStep(double step, double pixelsPerUnit, double leastPixels);

} // namespace skyvane
