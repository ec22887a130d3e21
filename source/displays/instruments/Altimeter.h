#pragma once

#include "displays/instruments/RoundDial.h"

namespace skyvane {

/// Three hands over one scale: hundreds (long), thousands (short and wide), ten thousands (a thin one with a triangle
/// at the rim); feet, or metres when the panels are metric. Its trust is that of the sensor which the indicated
/// altitude comes from, pressure or altitude.
class Altimeter : public RoundDial {
public:
    explicit Altimeter(Context* context);
    std::string getName() override { return "Altimeter"; }

protected:
    DialEvidence readValue() override;
    void drawLayers(const DialFrame& frame, DialFlag flag) override;
    const wchar_t* failureName() const override { return L"ALT"; }

private:
    PanelTexture face_;
    PanelTexture tenThousands_;
    PanelTexture thousands_;
    PanelTexture hundreds_;
    double altitude_ = 0.0; ///< In the unit of the dial.
};

} // namespace skyvane
