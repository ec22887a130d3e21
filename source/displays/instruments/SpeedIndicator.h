#pragma once

#include "displays/gauges/SpeedScale.h"
#include "displays/instruments/DialText.h"
#include "displays/instruments/RoundDial.h"
#include "displays/instruments/SpeedFace.h"

namespace skyvane {

/// Air speed, or ground speed, which then stands on the dial as a word; knots, or km/h when the panels are metric. The
/// scale and its marks are those of the current aircraft.
class SpeedIndicator : public RoundDial {
public:
    explicit SpeedIndicator(Context* context);
    std::string getName() override { return "Ground/AirSpeedIndicator"; }

protected:
    DialEvidence readValue() override;
    void prepare(const DialFrame& frame) override;
    void drawLayers(const DialFrame& frame, DialFlag flag) override;
    void drawTexts(const irr::core::rect<int>& square) override;
    const wchar_t* failureName() const override { return groundSpeedShown_ ? L"GS" : L"IAS"; }

private:
    void updateScale();

    PanelTexture ground_;
    PanelTexture line_;
    PanelTexture plain_;
    PanelTexture needle_;
    PanelTexture ring_;
    SpeedFace face_;
    DialText word_;
    SpeedScale scale_; ///< Of the current aircraft, in the unit of the dial.
    bool metric_ = false;
    bool groundSpeedShown_ = false;
    double speed_ = 0.0; ///< In the unit of the dial.
};

} // namespace skyvane
