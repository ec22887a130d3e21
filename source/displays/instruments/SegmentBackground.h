#pragma once

#include "displays/gauges/DialFlag.h"
#include "displays/instruments/PanelTexture.h"

#include <irrlicht.h>

namespace skyvane {

class Drawer2D;

/// The rounded ground of a value field, one white drawing cut into nine: the corners keep their shape at any size.
class SegmentBackground {
public:
    /// The drawer outlives the background. `path` of the image.
    SegmentBackground(Drawer2D* drawer, const std::string& path);

    explicit operator bool() const { return static_cast<bool>(texture_); }
    /// Tinted. Nothing without its image.
    void draw(const irr::core::rect<int>& rect, irr::video::SColor color) const;
    /// The same with a rim in the flag's colour, unless all is good.
    void draw(const irr::core::rect<int>& rect, irr::video::SColor color, DialFlag flag) const;
    /// How wide that rim is.
    static int rimOf(const irr::core::rect<int>& rect);

private:
    Drawer2D* drawer_;
    PanelTexture texture_;
};

} // namespace skyvane
