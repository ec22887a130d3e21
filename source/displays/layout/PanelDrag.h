#pragma once

#include "core/geometry/EngineMath.h"
#include "displays/layout/PageLayout.h"

namespace skyvane {

/// A point of the panel area as fractions of it, like the corners of panels.
struct PanelPoint {
    double x;
    double y;
};

/// Where a panel can be taken hold of: its outer quarters move the edges, corners two of them, the middle moves the
/// whole, and a handle in its very middle makes it square.
enum class PanelGrip { None, Edges, Whole, Handle };

/// From 45 % to 55 % of the panel's extent.
PanelFractions handleOf(const PanelFractions& panel);
PanelGrip gripOf(const PanelFractions& panel, PanelPoint at);
/// The largest square inside, centred; `area` in pixels says what is square.
PanelFractions squareOf(const PanelFractions& panel, const irr::core::dimension2d<int>& area);

/// A pointer that drags a panel, from its press to its release.
///
///     if (drag.press(panel, at, now)) ...         // the pointer has taken hold
///     if (drag.move(at, now)) store(drag.getPanel());
///     switch (drag.release(at, now)) ...
///
/// An edge stops before its opposite edge. No edge leaves the area further than it was at the press. A second press
/// soon after one on the handle, at the same place, gives the panel the whole area. Not thread safe.
class PanelDrag {
public:
    enum class Result {
        Nothing, ///< No press came before.
        Changed, ///< getPanel() is the new place.
        Tapped   ///< The pointer went nowhere outside the handle; the panel is where it was.
    };

    explicit PanelDrag(const irr::core::dimension2d<int>& area) : area_(area) {}

    /// False, taking no hold, for a point outside the panel.
    bool press(const PanelFractions& panel, PanelPoint at, unsigned nowMilliseconds);
    /// Samples at most every 32 ms; true when the panel has changed.
    bool move(PanelPoint at, unsigned nowMilliseconds);
    Result release(PanelPoint at, unsigned nowMilliseconds);
    bool isActive() const { return grip_ != PanelGrip::None; }
    const PanelFractions& getPanel() const { return panel_; }

private:
    void follow(PanelPoint at);
    bool isNear(PanelPoint a, PanelPoint b) const;

    irr::core::dimension2d<int> area_;
    PanelGrip grip_ = PanelGrip::None;
    PanelFractions start_{};
    PanelFractions panel_{};
    PanelPoint pressedAt_{};
    unsigned pressedMilliseconds_ = 0;
    unsigned sampledMilliseconds_ = 0;
    bool moved_ = false;
    bool handlePressed_ = false; ///< The press before was on the handle: the next may be its double.
    bool filled_ = false;        ///< This press has given the panel the whole area.
};

} // namespace skyvane
