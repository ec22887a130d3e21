#include "gui/glyphs/IterateOverString.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr int penLimit = 1 << 28;
constexpr int widestTab = 1024;

/// The pen of one walk; it can't leave the range in which sums of positions and glyph measures fit an int.
struct Pen {
    int x = 0;
    int y = 0;

    void moveBy(int amount) { x = std::clamp(x + amount, -penLimit, penLimit); }
    void nextLine(int lineHeight) {
        x = 0;
        y = std::min(y + lineHeight, penLimit);
    }
    void moveToTab(int spaceAdvance, int tabSize) {
        const long long tabWidth = static_cast<long long>(spaceAdvance) * tabSize;
        if (tabWidth > 0)
            x = static_cast<int>(std::min<long long>((x / spaceAdvance / tabSize + 1) * tabWidth, penLimit));
    }
};

} // namespace

void iterateOverString(const wchar_t* text, size_t length, int tabSize, const FontDefinition& font,
                       ICharacterCallback& callback) {
    const FontCharacter* const space = font.findCharacter(L' ');
    const int spacesOfTab = std::clamp(tabSize, 0, widestTab);
    Pen pen;
    wchar_t previous = 0;
    for (size_t index = 0; space && index < length; ++index) {
        const wchar_t character = text[index];
        if (character == L'\n') {
            callback.OnLineFinished(pen.x);
            pen.nextLine(font.lineHeight);
        } else if (character == L'\r') {
            pen.x = 0;
        } else if (character == L'\t') {
            pen.moveToTab(space->xadvance, spacesOfTab);
        } else {
            const FontCharacter& glyph = *font.findCharacter(character);
            pen.moveBy(font.findKerning(previous, character));
            callback.OnCharacter(glyph, static_cast<int>(index), pen.x + glyph.xoffset, pen.y + glyph.yoffset);
            pen.moveBy(glyph.xadvance);
        }
        previous = character;
    }
    callback.OnLineFinished(pen.x);
}

} // namespace skyvane
