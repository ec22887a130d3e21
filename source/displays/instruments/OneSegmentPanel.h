#pragma once

#include "displays/IPanel.h"
#include "displays/gauges/SegmentReader.h"
#include "displays/instruments/DialFlagView.h"
#include "displays/instruments/DialText.h"
#include "displays/instruments/SegmentBackground.h"

#include <irrlicht.h>

namespace skyvane {

/// One labelled value: the label in the inverse of the field's colour over the value in white. A doubtful value is
/// yellow, a failed one is crossed out and reads "n/A", a simulated one is blue; the rim takes the same colour.
class OneSegmentPanel : public IPanel {
public:
    OneSegmentPanel(Context* context, irr::video::SColor color, SegmentType type);
    void OnPageChange() override {}
    /// Writes to the error stream and draws nothing without the panel font or the field's image.
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent) override { return true; }
    std::string getName() override { return "OneSegmentPanel"; }

    static constexpr char imagePath[] = "media/onesegment.png";
    /// Label over value in a field: what lies within its rim.
    static irr::core::rect<int> upperHalf(const irr::core::rect<int>& rect);
    static irr::core::rect<int> lowerHalf(const irr::core::rect<int>& rect);
    static irr::video::SColor labelColor(irr::video::SColor background);

private:
    SegmentSources gatherSources() const;

    irr::video::SColor color_;
    SegmentType type_;
    SegmentReader reader_;
    SegmentBackground background_;
    DialFlagView flagView_;
    DialText label_;
    DialText value_;
};

} // namespace skyvane
