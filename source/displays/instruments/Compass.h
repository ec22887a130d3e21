#pragma once

#include "displays/instruments/RoundDial.h"

#include <optional>

namespace skyvane {

/// A card that turns under a fixed aircraft: the heading, or the ground track of the satellite receiver while there is
/// no heading. A touch on the dial sets the heading bug; the bearing of a flown procedure has a bug of its own.
class Compass : public RoundDial {
public:
    explicit Compass(Context* context);
    std::string getName() override { return "Compass"; }
    void render(irr::core::rect<int> rect) override;
    /// Consumes a release of the left button, and a move with it held, inside the panel: the bug goes there.
    bool processEvent(irr::SEvent event) override;

    /// The outer ring's tint, and the colour of an outline round the panel; null for none.
    void setStyle(irr::video::SColor fill, const irr::video::SColor* outline);

protected:
    DialEvidence readValue() override;
    void drawLayers(const DialFrame& frame, DialFlag flag) override;
    const wchar_t* failureName() const override { return L"HDG"; }

private:
    void drawBugs(const DialFrame& frame);
    /// Degrees true to the next point of the procedure in force; none without one, or without a position.
    std::optional<double> procedureBearing() const;

    PanelTexture card_;
    PanelTexture plane_;
    PanelTexture bug_;
    PanelTexture ring_;
    std::optional<irr::video::SColor> fill_;
    std::optional<irr::video::SColor> outline_;
    irr::core::rect<int> touchArea_; ///< The panel as last drawn, not squared.
    double heading_ = 0.0;           ///< Kept while neither heading nor track is there.
    double bugOffset_ = 0.0;         ///< The bug's rotation on the card.
};

} // namespace skyvane
