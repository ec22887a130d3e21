#pragma once

#include "gui/glyphs/FontCharacter.h"

namespace skyvane {

/// Hears the steps of iterateOverString().
class ICharacterCallback {
public:
    virtual ~ICharacterCallback() = default;

    /// A glyph whose rectangle has its upper left corner at x, y. `index` counts characters of the text.
    virtual void OnCharacter(const FontCharacter& character, int index, int x, int y) = 0;

    /// A line has ended, by a line feed or with the text; `width` is the pen position.
    virtual void OnLineFinished(int width) = 0;
};

} // namespace skyvane
