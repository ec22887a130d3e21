#include "procedures/dialogs/DirectSetup.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/GreatCircle.h"
#include "procedures/framework/FlightReadings.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr int lineWidth = 3;
constexpr double shareToAircraft = 0.36, leastMetres = 500.0;
const irr::video::SColor courseColor(0xffff50ff);

/// An airport as its sketch stands; a navaid or fix so that the aircraft is on the picture.
PreviewFrame frameOf(const IChartElement& element, const std::optional<ChartPosition>& aircraft,
                     const irr::core::rect<int>& rect) {
    if (element.getType() == IChartElement::AIRPORT)
        return sketchFrame(static_cast<const AirportElement&>(element), rect);
    const double metres = aircraft ? calcDistance2(element.getPosition(), *aircraft) : leastMetres;
    return {element.getPosition(),
            shareToAircraft * std::min(rect.getWidth(), rect.getHeight()) / std::max(metres, leastMetres), rect};
}

} // namespace

void DirectSetup::renderPreview(IndicatedProcedure* procedure, irr::core::rect<int> rect) {
    preview_.drawElement(procedure->chartIndex, rect);
    const IChartElement* element = elementOf(*procedure);
    if (!element)
        return;
    const std::optional<ChartPosition> aircraft = readFlight(*context_.getSensorManager()).position;
    const PreviewFrame frame = frameOf(*element, aircraft, rect);
    if (aircraft)
        preview_.drawLine(placeAircraft(frame, *aircraft, 0).place, rect.getCenter(), lineWidth, courseColor);
    preview_.drawAircraft(frame);
}

} // namespace skyvane
