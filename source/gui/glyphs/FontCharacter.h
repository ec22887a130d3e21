#pragma once

namespace skyvane {

/// The texture rectangle of a glyph, as fractions of the page.
struct GlyphTexture {
    float left = 0.0f;
    float top = 0.0f;
    float right = 0.0f;
    float bottom = 0.0f;
};

/// One glyph of a font page. Lengths are pixels of the atlas, which are the pixels of the screen at scale 1.
struct FontCharacter {
    int id = 0; ///< Character code.
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    int xoffset = 0;  ///< From the pen to the left edge of the rectangle.
    int yoffset = 0;  ///< From the top of the line to the top edge of the rectangle.
    int xadvance = 0; ///< From this pen position to the next.
    GlyphTexture texture;
};

} // namespace skyvane
