#pragma once

#include "displays/visionmath/bars/BarCanvas.h"
#include "displays/visionmath/bars/RollingDigits.h"

#include <initializer_list>

namespace skyvane {

/// Puts what all bars have in common on a canvas.
class BarPen {
public:
    explicit BarPen(BarCanvas& canvas) : canvas_(canvas) { path_.reserve(16); }

    /// With soft edges wherever it lies; nothing when it is empty.
    void rect(BarCanvas::Level level, const ShapeRect& place, uint32_t argb);
    void frame(BarCanvas::Level level, const ShapeRect& place, double width, uint32_t argb);
    /// From one colour at the top to another at the bottom.
    void shade(BarCanvas::Level level, const ShapeRect& place, uint32_t top, uint32_t bottom);
    void polygon(BarCanvas::Level level, std::initializer_list<ShapePoint> corners, uint32_t argb);
    void picture(BarPicture::Kind kind, const ShapeRect& place, uint32_t argb, bool isMirrored = false,
                 BarCanvas::Level level = BarCanvas::Box);
    void pane(BarCanvas::Level level, BarPane::Kind kind, const ShapeRect& place, uint32_t argb = BarColor::pane) {
        canvas_.layers[level].panes.push_back({kind, place, argb});
    }
    void text(BarCanvas::Level level, const BarText& text) { canvas_.layers[level].texts.push_back(text); }
    void cross(const ShapeRect& place, const wchar_t* name) { canvas_.crosses.push_back({place, name}); }

    /// The background of a tape in the user's colour, over a shade that keeps it readable on snow.
    void band(const ShapeRect& place, uint32_t argb);
    /// A dark box with a word or a number in its middle.
    void label(const ShapeRect& place, const ShortText& words, double height, uint32_t argb);
    /// The digits of a drum counter within a box, their last one at `right`; the drum is dark at its rims.
    void counter(const RollingDigits& digits, const ShapeRect& window, double right, double height, uint32_t argb);

    /// Digits of the font are that wide, in parts of their height.
    static constexpr double digitWidth = 0.83;

private:
    BarCanvas& canvas_;
    ShapePath path_;
};

constexpr double middleX(const ShapeRect& rect) {
    return 0.5 * (rect.UpperLeftCorner.X + rect.LowerRightCorner.X);
}
constexpr double middleY(const ShapeRect& rect) {
    return 0.5 * (rect.UpperLeftCorner.Y + rect.LowerRightCorner.Y);
}

} // namespace skyvane
