#pragma once

#include <cstdint>

namespace skyvane {

struct FontDefinition;

/// How the text of a document looks. Elements copy it, change the copy and hand it to what they hold. Colours are
/// 0xAARRGGBB.
struct Style {
    const FontDefinition* font = nullptr; ///< Not owned. Without one texts take no room.
    float scale = 1.0f;                   ///< Pixels of the font's page to pixels of the screen.
    uint32_t textColor = 0xff000000;
    uint32_t backgroundNormal = 0xff000000;
    uint32_t backgroundHover = 0xff000000;
    uint32_t backgroundPressed = 0xff000000;
    bool fillBackground = false;
    bool drawFrame = false;
    bool centered = false;

    /// The scale within 0.01, everything else exactly.
    bool operator==(const Style& other) const;
    bool operator!=(const Style& other) const { return !(*this == other); }

    static constexpr float smallestScale = 0.02f;
    static constexpr float largestScale = 20.0f;
    /// The scale times a factor, within what can be drawn.
    void multiplyScale(float factor);
    /// The scale times 1.1 to the power of a size, whatever the size.
    void applySize(int size);
};

/// The colour, or one that can be read, when a text of it wouldn't stand out from the background.
uint32_t readableColor(uint32_t color, uint32_t background);

} // namespace skyvane
