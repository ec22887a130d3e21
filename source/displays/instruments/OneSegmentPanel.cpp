#include "displays/instruments/OneSegmentPanel.h"

#include "core/Context.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/SegmentFormat.h"
#include "displays/instruments/TargetName.h"
#include "procedures/framework/IProcedure.h"
#include "terrain/TerrainManager.h"

#include <algorithm>
#include <cmath>
#include <iostream>

namespace skyvane {

namespace {

irr::core::rect<int> shrunk(const irr::core::rect<int>& rect, int by) {
    return {rect.UpperLeftCorner.X + by, rect.UpperLeftCorner.Y + by, rect.LowerRightCorner.X - by,
            rect.LowerRightCorner.Y - by};
}

/// What lies within the rim, with a margin to both sides.
irr::core::rect<int> textBox(const irr::core::rect<int>& rect) {
    irr::core::rect<int> box = shrunk(rect, 2 * SegmentBackground::rimOf(rect));
    box.UpperLeftCorner.X += SegmentBackground::rimOf(rect);
    box.LowerRightCorner.X -= SegmentBackground::rimOf(rect);
    return box;
}

} // namespace

OneSegmentPanel::OneSegmentPanel(Context* context, irr::video::SColor color, SegmentType type)
    : IPanel(context), color_(color), type_(type), reader_(type),
      background_(context->getDrawer(), context->getPath(imagePath)), flagView_(context->getDrawer()) {}

irr::core::rect<int> OneSegmentPanel::upperHalf(const irr::core::rect<int>& rect) {
    irr::core::rect<int> half = textBox(rect);
    half.LowerRightCorner.Y = rect.getCenter().Y;
    return half;
}

irr::core::rect<int> OneSegmentPanel::lowerHalf(const irr::core::rect<int>& rect) {
    irr::core::rect<int> half = textBox(rect);
    half.UpperLeftCorner.Y = rect.getCenter().Y;
    return half;
}

irr::video::SColor OneSegmentPanel::labelColor(irr::video::SColor background) {
    return irr::video::SColor(~background.color | 0xff000000u);
}

SegmentSources OneSegmentPanel::gatherSources() const {
    SegmentSources sources;
    sources.sensors = context_->getSensorManager();
    sources.metric = context_->getPanelManager()->isMetric();
    if (const TerrainManager* terrain = context_->getPanelManager()->getTerrainManager()) {
        const float elevation = terrain->getCurrentElevation();
        const bool known = terrain->isCurrentElevationKnown() && std::isfinite(elevation);
        sources.groundElevationMetres = known ? elevation : 0.0;
    }
    if (const IProcedure* procedure = context_->getCurrentProcedure()) {
        sources.bearingDegrees = procedure->getBearing();
        sources.eteSeconds = procedure->getETE();
        sources.distanceNauticalMiles = procedure->getLength();
        if (type_ == SegmentType::NEXTWPT)
            sources.nextWaypoint = nameOfTarget(*context_, *procedure);
    }
    return sources;
}

void OneSegmentPanel::render(irr::core::rect<int> rect) {
    FlexibleFont* font = context_->getFlexibleFont();
    if (!font || !background_) {
        std::cerr << "OneSegmentPanel::render error.\n";
        return;
    }
    const SegmentReading reading = reader_.read(gatherSources());
    background_.draw(rect, color_, reading.flag);
    if (reading.flag == DialFlag::Failed)
        flagView_.drawCross(DialFlagView::crossPlace(shrunk(rect, 2 * SegmentBackground::rimOf(rect))));
    context_->getDrawer()->flush();
    label_.draw(font, segmentLabel(type_, context_->isPortrait()), nullptr, upperHalf(rect), labelColor(color_));
    const bool known = !(reading.text == ShortText(notAvailable));
    value_.draw(font, reading.text.c_str(), known ? segmentSample(type_) : nullptr, lowerHalf(rect),
                reading.flag == DialFlag::Failed ? irr::video::SColor(0xffffffff)
                                                 : DialFlagView::flagColor(reading.flag));
}

} // namespace skyvane
