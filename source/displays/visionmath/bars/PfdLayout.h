#pragma once

#include "displays/shapes/Strokes.h"
#include "displays/visionmath/VisionSettings.h"

namespace skyvane {

/// Where the bars of a panel lie, and how large their words are, in pixels of the screen.
///
/// The speed tape stands a bar's width from the left, the altitude tape as far from the right with the vertical speed
/// beyond it, the track tape between them at the top. What is written below and above the tapes decides how high they
/// may be.
struct PfdLayout {
    PfdLayout(const irr::core::rect<int>& panel, const VisionSettings& settings);

    double barWidth;
    double tick;  ///< Height of the digits of a tape.
    double value; ///< Of the current value in its box.
    double word;  ///< Of titles.
    double line;  ///< Width of fine lines.
    double shortMark;

    ShapeRect speed, altitude, vertical, track;
    ShapeRect speedTitle, altitudeTitle, verticalTitle;
    ShapeRect trackHead; ///< The row above the track tape: title, value, bearing.
    ShapeRect groundSpeed, aboveGround, qnh;
    ShapeRect nextFix, angleOfAttack;
    irr::core::rect<int> free; ///< What is left to the scene's symbols.

private:
    void placeTapes(const irr::core::rect<int>& panel, const VisionSettings& settings);
    void placeTrack(const irr::core::rect<int>& panel);
    void placeCorner(const irr::core::rect<int>& panel);
};

} // namespace skyvane
