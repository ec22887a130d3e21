#include "gui/glyphs/FontDefinition.h"

namespace skyvane {

const FontCharacter* FontDefinition::findCharacter(wchar_t character) const {
    auto found = characters.find(character);
    if (found == characters.end())
        found = characters.find(L' ');
    return found == characters.end() ? nullptr : &found->second;
}

int FontDefinition::findKerning(wchar_t first, wchar_t second) const {
    const wchar_t pair[] = {first, second};
    const auto found = kernings.find(std::wstring(pair, 2)); // two characters fit into the string object itself
    return found == kernings.end() ? 0 : found->second;
}

void FontDefinition::convertFontCoords2TexCoords(const irr::core::dimension2d<irr::u32>& page, bool toPixelCentres) {
    if (page.Width == 0 || page.Height == 0)
        return;
    const float shift = toPixelCentres ? 0.5f : 0.0f;
    const float width = static_cast<float>(page.Width);
    const float height = static_cast<float>(page.Height);
    for (auto& entry : characters) {
        FontCharacter& glyph = entry.second;
        glyph.texture.left = (static_cast<float>(glyph.x) + shift) / width;
        glyph.texture.top = (static_cast<float>(glyph.y) + shift) / height;
        glyph.texture.right = (static_cast<float>(glyph.x + glyph.width) + shift) / width;
        glyph.texture.bottom = (static_cast<float>(glyph.y + glyph.height) + shift) / height;
    }
}

} // namespace skyvane
