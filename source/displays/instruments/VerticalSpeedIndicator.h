#pragma once

#include "displays/instruments/DialText.h"
#include "displays/instruments/RoundDial.h"

namespace skyvane {

/// Filtered vertical speed, the needle resting at the left, with the number in the right half: ft/min, or m/s when the
/// panels are metric.
class VerticalSpeedIndicator : public RoundDial {
public:
    explicit VerticalSpeedIndicator(Context* context);
    std::string getName() override { return "VerticalSpeedIndicator"; }

protected:
    DialEvidence readValue() override;
    void drawLayers(const DialFrame& frame, DialFlag flag) override;
    void drawTexts(const irr::core::rect<int>& square) override;
    const wchar_t* failureName() const override { return L"V/S"; }

private:
    bool metric_; ///< Another unit loads the panels anew.
    PanelTexture face_;
    PanelTexture needle_;
    DialText number_;
    double metresPerSecond_ = 0.0;
};

} // namespace skyvane
