#pragma once

#include "displays/IPanel.h"
#include "displays/gauges/BatteryGauge.h"
#include "displays/instruments/PanelTap.h"
#include "displays/instruments/PanelTexture.h"

#include <irrlicht.h>

namespace skyvane {

class Drawer2D;

/// The look of a battery: shared by the panel and its preview.
class BatteryView {
public:
    explicit BatteryView(Context* context);
    /// `rect` has the battery's shape.
    void draw(const irr::core::rect<int>& rect, const BatteryReading& battery) const;

private:
    void drawFill(const irr::core::rect<int>& rect, double fill) const;

    Drawer2D* drawer_;
    PanelTexture shadow_;
    PanelTexture color_;
    PanelTexture light_;
    PanelTexture charging_;
    PanelTexture unknown_;
};

/// The device's battery. A tap tells the percentage and how long it lasts.
class BatteryPanel : public IPanel {
public:
    explicit BatteryPanel(Context* context) : IPanel(context), view_(context) {}
    void OnPageChange() override {}
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent event) override;
    std::string getName() override { return "BatteryPanel"; }

private:
    BatteryReading read() const;

    BatteryView view_;
    PanelTap tap_;
    irr::core::rect<int> area_; ///< As last drawn.
};

} // namespace skyvane
