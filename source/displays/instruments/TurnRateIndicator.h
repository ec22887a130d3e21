#pragma once

#include "displays/instruments/DialText.h"
#include "displays/instruments/RoundDial.h"

namespace skyvane {

/// A turn coordinator: the aircraft symbol banks with the turn rate, the ball lies where the apparent gravity puts it.
/// Ball and symbol are believed each by itself: without a good acceleration the ball's tube is crossed out.
class TurnRateIndicator : public RoundDial {
public:
    /// `drawText` writes the rate as a number over the symbol.
    TurnRateIndicator(Context* context, bool drawText);
    std::string getName() override { return "TurnCoordinator"; }

protected:
    DialEvidence readValue() override;
    void drawLayers(const DialFrame&, DialFlag) override {}
    /// The face comes over the bezel.
    void drawAboveBezel(const DialFrame& frame, DialFlag flag) override;
    void drawTexts(const irr::core::rect<int>& square) override;
    const wchar_t* failureName() const override { return L"T/R"; }

private:
    void readBall();
    void drawBall(const DialFrame& frame);

    PanelTexture face_;
    PanelTexture ball_;
    PanelTexture plane_;
    DialText number_;
    bool drawText_;
    double degreesPerSecond_ = 0.0;
    DialFlag ballFlag_ = DialFlag::Failed;
    double ballOffset_ = 0.0; ///< In parts of the panel's width, right positive.
};

} // namespace skyvane
