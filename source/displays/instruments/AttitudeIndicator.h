#pragma once

#include "displays/gauges/AttitudeGauge.h"
#include "displays/instruments/RoundDial.h"

#include <optional>

namespace skyvane {

/// The artificial horizon: disc, ladder and bank scale turn with the roll, the ladder also moves with the pitch, the
/// aircraft symbol stands. Ladder numbers reach 45 degrees; beyond, chevrons on the disc point to the horizon.
class AttitudeIndicator : public RoundDial {
public:
    explicit AttitudeIndicator(Context* context);
    std::string getName() override { return "AttitudeIndicator"; }
    void render(irr::core::rect<int> rect) override;

    /// The ring's tint, and the colour of an outline round the panel; null for none.
    void setStyle(irr::video::SColor fill, const irr::video::SColor* outline);

protected:
    DialEvidence readValue() override;
    void drawLayers(const DialFrame& frame, DialFlag flag) override;
    void drawAboveBezel(const DialFrame& frame, DialFlag flag) override;
    const wchar_t* failureName() const override { return L"ATT"; }

private:
    void drawHorizon(const DialFrame& frame);

    PanelTexture sky_;
    PanelTexture ground_;
    PanelTexture ladder_;
    PanelTexture bank_;
    PanelTexture ring_;
    PanelTexture top_;
    irr::video::SColor fill_{0xffffffff};
    std::optional<irr::video::SColor> outline_;
    AttitudePose pose_;
};

} // namespace skyvane
