#pragma once

#include <ft2build.h>
#include FT_FREETYPE_H
#include <map>
#include <string>
#include <vector>

namespace skyvane {

/// Adds the kerning of each pair of characters, in whole pixels of the em, where it isn't 0.
///
/// Each pair is shaped with and without kerning, so whatever table the font keeps it in (GPOS, kern) counts; what a
/// ligature would change doesn't.
void collectPairKernings(FT_Face face, int emPixels, const std::vector<wchar_t>& characters,
                         std::map<std::wstring, int>& kernings);

} // namespace skyvane
