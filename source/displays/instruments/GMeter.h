#pragma once

#include "displays/instruments/DialText.h"
#include "displays/instruments/RoundDial.h"

namespace skyvane {

/// The load that the aircraft and its people carry, in g; the needle rests at the left at 0.
class GMeter : public RoundDial {
public:
    explicit GMeter(Context* context);
    std::string getName() override { return "G-Meter"; }

protected:
    DialEvidence readValue() override;
    void drawLayers(const DialFrame& frame, DialFlag flag) override;
    void drawTexts(const irr::core::rect<int>& square) override;
    const wchar_t* failureName() const override { return L"G"; }

private:
    PanelTexture face_;
    PanelTexture needle_;
    DialText number_;
    double load_ = 0.0;
};

} // namespace skyvane
