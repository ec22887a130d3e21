#include "core/ScreenMetrics.h"

#include "core/text/Numbers.h"

#include <cmath>

namespace skyvane {

ScreenMetrics::ScreenMetrics(unsigned screenWidth, unsigned screenHeight)
    : width(screenWidth), height(screenHeight), pixelCount(static_cast<int>(screenWidth * screenHeight)),
      portrait(screenHeight > screenWidth) {
    const double root = std::sqrt(static_cast<double>(pixelCount));
    buttonWidth = roundHalfAway(0.12649 * root);
    buttonHeight = roundHalfAway(0.049410625 * root);
    largeUnit = roundHalfAway(0.37947 * root);
}

} // namespace skyvane
