#pragma once

#include "displays/IPanel.h"
#include "displays/gauges/DialFlag.h"
#include "displays/instruments/DialFlagView.h"
#include "displays/instruments/DialText.h"
#include "displays/instruments/PanelTexture.h"

#include <irrlicht.h>

namespace skyvane {

class Drawer2D;

/// What the pilot chose for a slip strip.
struct SlipStyle {
    bool drawText = true;
    irr::video::SColor background{0x40808080};
    irr::video::SColor text{0xffffffff};
};

/// A horizontal strip: the upper marker slips to the side of the apparent gravity, the lower one goes with the turn
/// rate. Each half is crossed out when its own value fails.
class SlipIndicator : public IPanel {
public:
    SlipIndicator(Context* context, const SlipStyle& style);
    void OnPageChange() override {}
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent) override { return true; }
    std::string getName() override { return "Slip/Skid Indicator"; }

private:
    void readValues();
    void drawStrip(int width, int height);
    void drawText(const irr::core::rect<int>& strip);

    Drawer2D* drawer_;
    SlipStyle style_;
    PanelTexture ground_;
    PanelTexture upper_;
    PanelTexture lower_;
    DialFlagView flagView_;
    DialText rateText_;
    DialFlag slipFlag_ = DialFlag::Failed;
    DialFlag turnFlag_ = DialFlag::Failed;
    double sideways_ = 0.0;
    double degreesPerSecond_ = 0.0;
};

} // namespace skyvane
