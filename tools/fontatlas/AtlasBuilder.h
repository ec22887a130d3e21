#pragma once

#include "fontatlas/CharacterList.h"
#include "fontatlas/FontFiles.h"
#include "gui/glyphs/FontDefinition.h"

namespace skyvane {

struct AtlasOptions {
    int emPixels = 42;
    int spread = 4; ///< Pixels from an edge to the end of the field.
    int oversampling = 16;
    int pageWidth = 1024;
    int pageHeight = 1024; ///< At most.
};

/// One page of distance fields, and where its glyphs lie.
struct Atlas {
    FontDefinition font;
    GrayImage page;
    std::vector<wchar_t> missing; ///< Wanted, but in no file, not drawn and without a substitute.
    bool full = false;            ///< The page was too small.
};

/// Draws the characters, packs them and collects their kerning.
Atlas buildAtlas(const AtlasOptions& options, const FontFiles& files, const CharacterList& list);

} // namespace skyvane
