#pragma once

#include "core/geometry/EngineMath.h"
#include "gui/glyphs/FontCharacter.h"
#include <map>
#include <string>

namespace skyvane {

/// What a font file says, without the page's picture: glyphs by character code, kerning by pair, line measures.
struct FontDefinition {
    std::map<wchar_t, FontCharacter> characters;
    /// Pixels to add between two characters; the key is the pair, first character first.
    std::map<std::wstring, int> kernings;
    int size = 0;
    int lineHeight = 0;
    int base = 0; ///< From the top of a line to its base line.

    /// The glyph of a character, or the space's for one that the font lacks; null only when there is no space either.
    const FontCharacter* findCharacter(wchar_t character) const;

    /// The kerning of a pair, 0 when it has none. Allocates nothing.
    int findKerning(wchar_t first, wchar_t second) const;

    /// Fills the texture rectangles: atlas pixels divided by the page's size; to pixel centres moves each rectangle by
    /// half a pixel towards the lower right. An empty page leaves them empty.
    void convertFontCoords2TexCoords(const irr::core::dimension2d<irr::u32>& page, bool toPixelCentres);
};

} // namespace skyvane
