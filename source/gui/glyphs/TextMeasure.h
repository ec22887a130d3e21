#pragma once

#include "gui/glyphs/FontDefinition.h"
#include <cstddef>

namespace skyvane {

/// Width and height of a text in pixels: the furthest pen position and one line height below the lowest line with a
/// glyph, times the scale, rounded. An empty text is one line high and 0 wide.
irr::core::dimension2d<irr::u32> measureText(const wchar_t* text, size_t length, int tabSize,
                                             const FontDefinition& font, const irr::core::vector2d<float>& scale);

/// A size in pixels at scale 1, scaled and rounded as measureText() does.
irr::core::dimension2d<irr::u32> scaleDimension(const irr::core::dimension2d<irr::u32>& dimension,
                                                const irr::core::vector2d<float>& scale);

/// The index before the first glyph whose pen position lies right of `x` (pixels at scale 1), -1 when there is none.
int findCharacterAt(const wchar_t* text, size_t length, int tabSize, const FontDefinition& font, float x);

/// The larger scale at which a text of this size (measured at scale 1) still fits into the target.
float optimalScale(const irr::core::dimension2d<irr::u32>& text, const irr::core::dimension2d<irr::u32>& target);

} // namespace skyvane
