#pragma once

#include "displays/gauges/SpeedScale.h"
#include "displays/instruments/PanelTexture.h"

#include <irrlicht.h>

namespace skyvane {

class Drawer2D;
class FlexibleFont;

/// The static picture of a speed dial, drawn into a target of its own once for each size.
class SpeedFace {
public:
    struct Images {
        const PanelTexture* ground;
        const PanelTexture* line;
        const PanelTexture* plain;
    };

    /// The drawer outlives the face.
    explicit SpeedFace(Drawer2D* drawer) : drawer_(drawer) {}

    /// Draws the face when size, scale or font differ from the last time's. Changes target and viewport: call it before
    /// the dial's own viewport is set. Without a font the face has no numbers.
    void prepare(int size, bool metric, const SpeedScale& scale, const Images& images, FlexibleFont* font);

    /// Null before prepare(), or when the driver has no targets. Opaque: to be drawn without blending.
    irr::video::ITexture* get() const { return target_.get(); }

private:
    void renderGauge(int size, const SpeedScale& scale, const Images& images, FlexibleFont* font);
    void drawArcs(double radius, const SpeedScale& scale, const PanelTexture& plain);
    void drawTicks(double radius, const SpeedScale& scale, const PanelTexture& line);
    void drawMark(double radius, double angleDegrees, double inner, irr::video::SColor color, const PanelTexture& line,
                  double width);
    void drawNumbers(double radius, const SpeedScale& scale, FlexibleFont* font);

    Drawer2D* drawer_;
    PanelTexture target_;
    int size_ = 0;
    bool metric_ = false;
    SpeedScale scale_;
    FlexibleFont* font_ = nullptr;
};

} // namespace skyvane
