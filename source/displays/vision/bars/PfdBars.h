#pragma once

#include "displays/vision/bars/BarPainter.h"
#include "displays/visionmath/VisionSettings.h"
#include "displays/visionmath/bars/BarPen.h"

#include <irrlicht.h>

namespace skyvane {

class Context;
struct PfdReadings;

/// The bars over a synthetic view: speed, altitude, vertical speed and track, with what belongs to them, angle of
/// attack, and the next fix. What is drawn is laid out on the lower floor.
///
/// Map3D calls render() once a frame when the scene and its symbols are drawn: the screen's viewport is set, the drawer
/// has nothing to draw. Allocates nothing while the values keep their form. Main thread only.
class PfdBars {
public:
    PfdBars(Context* context, const VisionSettings& settings);
    ~PfdBars();
    PfdBars(const PfdBars&) = delete;
    PfdBars& operator=(const PfdBars&) = delete;

    /// `rect` is the panel on the screen.
    void render(const irr::core::rect<int>& rect, const PfdReadings& readings);
    /// The "QNH /" box, on the screen, as the last frame had it; empty without one.
    const irr::core::rect<int>& getQnhRect() const { return qnhRect_; }
    /// What the bars leave of the panel to the scene's symbols (pitch ladder, chevrons, words).
    irr::core::rect<int> getFreeRect(const irr::core::rect<int>& rect) const;
    /// Where the next point of the plan is told.
    irr::core::rect<int> getNextFixRect(const irr::core::rect<int>& rect) const;

    void setTrueMagneticHeading(bool magnetic) { settings_.renderTrueMagHeading = magnetic; }

private:
    Context* context_;
    VisionSettings settings_;
    BarPainter painter_;
    BarCanvas canvas_;
    BarPen pen_;
    irr::core::rect<int> qnhRect_;
};

} // namespace skyvane
