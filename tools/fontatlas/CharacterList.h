#pragma once

#include <map>
#include <string>
#include <vector>

namespace skyvane {

/// What an atlas holds. Made from characters.txt, whose lines are
///
///     20-7E            characters by code, hexadecimal, or a range of them
///     2126=3A9         a character that borrows another's glyph where the fonts lack it
///     # ...            a comment, up to the end of the line
struct CharacterList {
    std::vector<wchar_t> characters;
    std::map<wchar_t, wchar_t> substitutes;

    static CharacterList parse(const std::string& text);
};

} // namespace skyvane
