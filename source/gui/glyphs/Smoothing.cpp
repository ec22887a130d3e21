#include "gui/glyphs/Smoothing.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

float edgeSmoothing(float factor, const irr::core::vector2d<float>& scale, float fatness) {
    constexpr float sharpest = 1e-4f;
    const float meanScale = std::sqrt((scale.X * scale.X + scale.Y * scale.Y) * 0.5f);
    const float widest = std::max(fatness, sharpest);
    return meanScale > 0.0f ? std::clamp(factor / (meanScale * 16.0f), sharpest, widest) : widest;
}

} // namespace skyvane
