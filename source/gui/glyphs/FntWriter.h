#pragma once

#include "gui/glyphs/FontDefinition.h"
#include <string>

namespace skyvane {

/// What a font file tells beyond the definition.
struct FntPage {
    std::string face; ///< Name of the font, without double quotes.
    std::string file; ///< Bare name of the page's picture.
    irr::core::dimension2d<irr::u32> size;
    int spread = 0; ///< Pixels from a glyph's edge to the end of the distance field.
};

/// The ".fnt" text that parseFntText() reads back into the same definition.
std::string writeFntText(const FontDefinition& font, const FntPage& page);

} // namespace skyvane
