#pragma once

#include <set>
#include <string>
#include <vector>

namespace skyvane {

/// One key of an on-screen keyboard.
struct KeyDefinition {
    wchar_t character = 0;
    wchar_t shiftCharacter = 0; ///< The same as `character` where shift changes nothing.
    int keyCode = 0;            ///< The engine's code of the key.
    double width = 1.0;         ///< In key widths.
    std::string image;          ///< Below the home folder; empty for a key that shows its character.
};

/// An on-screen keyboard: rows of keys from the top, as wide as `columns` keys.
struct KeyboardDefinition {
    int columns = 1;
    double aspect = 0.0;      ///< Width to height of a key; 0 for keys that share the screen's width.
    std::set<int> editBoxIds; ///< The edit boxes for which this keyboard comes up by itself (EditBoxId).
    std::vector<std::vector<KeyDefinition>> rows;
};

/// The text keyboard and the number pad.
extern const std::vector<KeyboardDefinition> keyBoardDefs;

} // namespace skyvane
