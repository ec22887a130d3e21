#pragma once

#include "displays/IPanel.h"
#include "displays/glide/GlideFormat.h"
#include "displays/glide/GlideReadings.h"
#include "displays/information/GlideDestination.h"
#include "displays/instruments/DialFlagView.h"
#include "displays/instruments/DialText.h"
#include "displays/shapes/ShapeMesh.h"

#include <irrlicht.h>

namespace skyvane {

/// The glide as a table: the glide flown now and on the average, and the altitude above the destination on arrival with
/// these, with the aircraft's best one, and with but a part of each.
///
/// A value is marked as in a value field: yellow in doubt, crossed out when failed, blue when simulated.
class GliderPanel : public IPanel {
public:
    using UNITS = GlideUnits;

    struct Style {
        irr::video::SColor color1{0xff000000}; ///< Of the lines between the cells.
        irr::video::SColor color2{0xffffffff}; ///< Of the lines round the table.
        UNITS units = UNITS::Nautical;
        unsigned averageMilliseconds = 60000;
    };

    GliderPanel(Context* context, const Style& style);
    void OnPageChange() override {}
    void render(irr::core::rect<int> rect) override;
    bool processEvent(irr::SEvent) override { return true; }
    std::string getName() override { return "GliderPanel"; }
    void OnChartChanged() override { destination_.forget(); }
    void OnProcedureChanged() override { destination_.forget(); }

private:
    static constexpr int fields = 8;

    void layOut(const irr::core::rect<int>& rect, FlexibleFont& font);
    ShortText fieldText(int field, const GliderReadings& readings) const;
    void drawMark(const irr::core::rect<int>& place, DialFlag flag);
    void drawMarks(const GliderReadings& readings);
    void drawFields(FlexibleFont* font, const GliderReadings& readings);
    void drawHeads(FlexibleFont* font);
    void drawTable(FlexibleFont* font, const GliderReadings& readings);
    irr::core::rect<int> inside(const irr::core::rect<int>& cell) const;
    irr::core::rect<int> insideWidth(const irr::core::rect<int>& place) const;

    Style style_;
    GlideDestination destination_;
    GliderReader reader_;
    DialFlagView flagView_;
    irr::core::rect<int> rect_;
    ShapeMesh grid_;
    const FlexibleFont* font_ = nullptr; ///< Of the layout; only compared.
    bool areLabelsStacked_ = false;
    bool areValuesStacked_ = false;
    bool isTitleStacked_ = false;
    bool areHeadsStacked_ = false;
    DialText labels_[fields];
    DialText values_[fields];
    DialText title_;
    DialText heads_[GliderReadings::columns + 1];
    DialText factors_[GliderReadings::factors];
    DialText above_[GliderReadings::factors][GliderReadings::columns];
};

} // namespace skyvane
