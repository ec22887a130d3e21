#pragma once

#include "gui/glyphs/FontDefinition.h"
#include "gui/glyphs/ICharacterCallback.h"
#include <cstddef>

namespace skyvane {

/// The one walk over a text behind measuring, hit testing and mesh building, in pixels at scale 1.
///
/// A line feed starts the next line, a carriage return goes back to x = 0, a tab moves to the next multiple of
/// `tabSize` spaces from the start of the line. A character that the font lacks takes the space's glyph. Kerning is
/// added before the second glyph of a pair. The pen stays within +-2^28 however long the text. A font without a space
/// glyph gives no calls but the last OnLineFinished(). Allocates nothing.
void iterateOverString(const wchar_t* text, size_t length, int tabSize, const FontDefinition& font,
                       ICharacterCallback& callback);

} // namespace skyvane
