#include "displays/map/elements/AirportRenderer.h"

#include "chart/elements/AirportElement.h"
#include "core/Context.h"
#include "displays/map/elements/RendererParts.h"
#include "gui/font/FlexibleFont.h"

namespace skyvane {

namespace {

SketchKey keyOf(const AirportElement& airport, const SketchFrame& frame, const void* font, const void* charts) {
    SketchKey key(frame);
    key.add(font);
    key.add(charts);
    key.add(airport.isHeliport);
    key.add(airport.position);
    for (const Runway& runway : airport.runways) {
        for (const uint32_t number : {runway.surface, runway.lengthFeet, runway.widthFeet, runway.directionDegrees})
            key.add(number);
        for (const RunwayEnd& end : runway.ends) {
            key.add(end.name);
            key.add(end.isThresholdKnown);
            key.add(end.threshold);
        }
    }
    return key;
}

/// The chart's own element goes when others are fetched for what lies around.
AirportElement copyForSketch(const AirportElement& airport) {
    AirportElement copy;
    copy.position = airport.position;
    copy.runways = airport.runways;
    copy.isHeliport = airport.isHeliport;
    return copy;
}

} // namespace

void AirportRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& airport = static_cast<const AirportElement&>(*element);
    const SketchFrame frame = parts_.painter.frameFor(rect);
    IChartElementSource* charts = parts_.context->getCharts();
    const SketchPlan& plan = sketch_.get(keyOf(airport, frame, parts_.context->getFlexibleFont(), charts), [&] {
        const AirportElement copy = copyForSketch(airport);
        return planAirportSketch(copy, charts ? findAirportGround(*charts, copy) : AirportGround(), frame);
    });
    parts_.painter.draw(plan, rect);
}

} // namespace skyvane
