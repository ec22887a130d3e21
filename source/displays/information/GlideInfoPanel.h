#pragma once

#include "displays/IPanel.h"
#include "displays/glide/GlideReadings.h"
#include "displays/information/GlideDestination.h"
#include "displays/instruments/DialFlagView.h"
#include "displays/instruments/DialText.h"
#include "displays/instruments/PanelTap.h"
#include "displays/instruments/SegmentBackground.h"

#include <irrlicht.h>

namespace skyvane {

/// The glide ratio flown, the altitude above the sea in which a glide reaches the destination, and the average vertical
/// speed. A tap on the ratio asks for the one to reckon with. Looks like a value field, marked as one.
class GlideInfoPanel : public IPanel {
public:
    GlideInfoPanel(Context* context, irr::video::SColor color);
    void OnPageChange() override {}
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent event) override;
    std::string getName() override { return "GlideInfoPanel"; }
    void OnChartChanged() override { destination_.forget(); }
    void OnProcedureChanged() override { destination_.forget(); }

    static constexpr wchar_t ratioLabel[] = L"Glide Ratio / Glide Alt.:";
    static constexpr wchar_t averageLabel[] = L"  Average\nVert. Speed:";
    /// Between two lines of the grid, 0 to 3, at 0.05, 0.35, 0.65 and 0.95 of the panel.
    static irr::core::rect<int> part(const irr::core::rect<int>& rect, int left, int top, int right, int bottom);

private:
    double inverseGlideRatio() const;
    /// Units stand below their numbers then.
    bool isTall() const { return rect_.getHeight() > rect_.getWidth(); }
    GlideInfoReadings read();
    void drawCrosses(const GlideInfoReadings& readings);
    void drawLabels(FlexibleFont* font);
    void drawValues(FlexibleFont* font, const GlideInfoReadings& readings);
    void askForRatio();

    irr::video::SColor color_;
    double userRatio_ = 0.0; ///< 0 for the aircraft's.
    GlideDestination destination_;
    GlideInfoReader reader_;
    SegmentBackground background_;
    DialFlagView flagView_;
    PanelTap tap_;
    irr::core::rect<int> rect_;
    DialText ratioLabel_;
    DialText averageLabel_;
    DialText ratio_;
    DialText altitude_;
    DialText average_;
};

} // namespace skyvane
