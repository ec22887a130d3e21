#pragma once

#include "gui/glyphs/FontDefinition.h"
#include <cstddef>
#include <string>

namespace skyvane {

/// A font file in the text form of BMFont, read: the definition and where its page lies.
struct FntText {
    FontDefinition definition;
    std::string pageFile; ///< A bare file name, never a path: it can't leave the font's folder.
    std::string error;    ///< Empty when the font can be used; otherwise a plain word on what is wrong.
};

/// Reads a ".fnt" text. Any bytes are safe.
///
/// Each line is a tag and key=value pairs; a value in double quotes may hold blanks. Used are "info", "common", "page"
/// (only id 0), "char" and "kerning"; other lines and keys are passed over, as are glyphs and pairs whose codes aren't
/// characters. Refused, by a text in `error`: no page 0, no space glyph or one without advance, no line height, and
/// sizes, positions or counts beyond what any page can hold.
FntText parseFntText(const char* bytes, size_t count);

} // namespace skyvane
