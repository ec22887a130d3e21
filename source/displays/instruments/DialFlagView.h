#pragma once

#include "displays/gauges/DialFlag.h"
#include "displays/gauges/DialFrame.h"
#include "displays/instruments/DialText.h"
#include "displays/instruments/PanelTexture.h"

#include <irrlicht.h>

namespace skyvane {

class Drawer2D;
class FlexibleFont;

/// Draws how far a dial may be believed: a yellow ring, a red cross with the quantity's name, or SIM. Needs no image
/// file: its shapes are computed once and shared by all dials.
class DialFlagView {
public:
    /// The drawer outlives the view.
    explicit DialFlagView(Drawer2D* drawer);

    /// Ring and cross, over everything else of the dial, local to its square.
    void drawShapes(DialFlag flag, const DialFrame& frame);
    /// A red cross over any rectangle of the viewport.
    void drawCross(const irr::core::rect<int>& rect);
    /// The middle of a wide rectangle: a cross over all of it would lie down.
    static irr::core::rect<int> crossPlace(const irr::core::rect<int>& rect);
    /// The words, in screen coordinates. `name` is the failed quantity's.
    void drawWords(DialFlag flag, const irr::core::rect<int>& square, FlexibleFont* font, const wchar_t* name);

    /// The colour that stands for a flag: white, yellow, red or blue.
    static irr::video::SColor flagColor(DialFlag flag);
    /// The colour of a dial's markings and hands.
    static irr::video::SColor markingColor(DialFlag flag);

private:
    Drawer2D* drawer_;
    PanelTexture cross_;
    PanelTexture ring_;
    DialText words_;
};

} // namespace skyvane
