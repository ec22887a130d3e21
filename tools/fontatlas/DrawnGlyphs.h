#pragma once

#include "core/geometry/EngineMath.h"
#include <map>
#include <string>
#include <vector>

namespace skyvane {

/// A glyph of our own for what a font lacks: closed polygons in thousandths of the em, y upwards from the base line.
struct DrawnGlyph {
    using Point = irr::core::vector2d<int>;
    int advance = 0;
    std::vector<std::vector<Point>> contours;
};

/// Reads drawn.txt: lines of `code advance x,y x,y x,y / x,y ...`, the code hexadecimal, a slash between contours.
/// Contours run clockwise. Lines that aren't of this form are passed over.
std::map<wchar_t, DrawnGlyph> parseDrawnGlyphs(const std::string& text);

} // namespace skyvane
