#pragma once

#include "core/ini/IniFile.h"
#include <string>

namespace skyvane {

class FlexibleFont;
class FlexibleFontManager;

/// Where a font's file is and how fat its strokes are drawn: one section of the list of fonts.
struct ListedFont {
    std::string file; ///< Inside the list's folder; empty when the list doesn't know the font.
    float fatness = 0.5f;
};

/// Takes the list by value: asking a document may add to it.
ListedFont findListedFont(IniFile list, const std::string& name);

/// Loads it and sets the distance field material and its fatness. Null, with a line in the log, when that fails.
FlexibleFont* loadListedFont(FlexibleFontManager* fontManager, const std::string& path, const ListedFont& listed);

} // namespace skyvane
