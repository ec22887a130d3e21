#pragma once

#include "displays/IPanel.h"
#include "displays/gauges/WarningLampState.h"
#include "displays/instruments/PanelTap.h"
#include "displays/instruments/PanelTexture.h"

#include <irrlicht.h>

namespace skyvane {

class Drawer2D;

/// The look of a lamp: shared by the panel and its preview.
class LampView {
public:
    LampView(Context* context, WarningType type);
    /// In the largest square of the rectangle. Without its images the lamp is a plain square of its colour.
    void draw(irr::core::rect<int> rect, irr::video::SColor color) const;

private:
    Drawer2D* drawer_;
    PanelTexture tinted_;
    PanelTexture top_; ///< Drawn white over the tinted one; only lamps of the sensors have it.
};

/// A lamp for the trust in the default sensors, or for a deviation from the procedure that is flown. A tap on a
/// sensors' lamp tells the details.
class WarningLamp : public IPanel {
public:
    WarningLamp(Context* context, WarningType type);
    void OnPageChange() override {}
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent event) override;
    std::string getName() override { return "WarningLamp"; }

private:
    irr::video::SColor color() const;
    LampWatch watch() const;

    WarningType type_;
    LampView view_;
    PanelTap tap_;
    irr::core::rect<int> area_; ///< As last drawn.
};

} // namespace skyvane
