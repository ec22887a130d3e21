#include "gui/glyphs/TextMeasure.h"

#include "gui/glyphs/CharPosFinderCallback.h"
#include "gui/glyphs/DimensionFinderCallback.h"
#include "gui/glyphs/IterateOverString.h"
#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

irr::u32 scaled(irr::u32 pixels, float scale) {
    constexpr double largest = 1 << 30;
    const double product = static_cast<double>(pixels) * static_cast<double>(scale);
    return product > 0.0 ? static_cast<irr::u32>(std::lround(std::min(product, largest))) : 0; // NaN gives 0
}

} // namespace

irr::core::dimension2d<irr::u32> measureText(const wchar_t* text, size_t length, int tabSize,
                                             const FontDefinition& font, const irr::core::vector2d<float>& scale) {
    DimensionFinderCallback finder;
    iterateOverString(text, length, tabSize, font, finder);
    const int height = finder.getLastLine() + font.lineHeight;
    return scaleDimension({static_cast<irr::u32>(finder.getWidth()), static_cast<irr::u32>(std::max(0, height))},
                          scale);
}

irr::core::dimension2d<irr::u32> scaleDimension(const irr::core::dimension2d<irr::u32>& dimension,
                                                const irr::core::vector2d<float>& scale) {
    return {scaled(dimension.Width, scale.X), scaled(dimension.Height, scale.Y)};
}

int findCharacterAt(const wchar_t* text, size_t length, int tabSize, const FontDefinition& font, float x) {
    CharPosFinderCallback finder(x);
    iterateOverString(text, length, tabSize, font, finder);
    return finder.getIndex();
}

float optimalScale(const irr::core::dimension2d<irr::u32>& text, const irr::core::dimension2d<irr::u32>& target) {
    const float horizontal = static_cast<float>(target.Width) / (static_cast<float>(text.Width) + 1.0f);
    const float vertical = static_cast<float>(target.Height) / (static_cast<float>(text.Height) + 1.0f);
    return std::min(horizontal, vertical);
}

} // namespace skyvane
