#include "gui/hypertext/elements/Style.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace skyvane {
namespace {

constexpr float sameScale = 0.01f;
constexpr int leastContrast = 60;
constexpr int largestSize = 60;

/// As the eye weighs the colours, 0 to 255.
int brightness(uint32_t color) {
    const int red = color >> 16 & 0xff, green = color >> 8 & 0xff, blue = color & 0xff;
    return (299 * red + 587 * green + 114 * blue) / 1000;
}

} // namespace

bool Style::operator==(const Style& other) const {
    return font == other.font && std::abs(scale - other.scale) <= sameScale && textColor == other.textColor &&
           backgroundNormal == other.backgroundNormal && backgroundHover == other.backgroundHover &&
           backgroundPressed == other.backgroundPressed && fillBackground == other.fillBackground &&
           drawFrame == other.drawFrame && centered == other.centered;
}

void Style::multiplyScale(float factor) {
    scale = std::clamp(scale * factor, smallestScale, largestScale);
}

void Style::applySize(int size) {
    multiplyScale(std::pow(1.1f, static_cast<float>(std::clamp(size, -largestSize, largestSize))));
}

uint32_t readableColor(uint32_t color, uint32_t background) {
    if (std::abs(brightness(color) - brightness(background)) >= leastContrast)
        return color;
    return brightness(background) < 128 ? 0xffffffff : 0xff000000;
}

} // namespace skyvane
