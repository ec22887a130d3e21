#include "procedures/preview/RunwayArrow.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/EarthConstants.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

/// That of the element when it was read from a chart, or one made for the call.
template <class Use>
auto withSketch(const AirportElement& airport, Use use) {
    return airport.getSketch() ? use(*airport.getSketch()) : use(AirportSketch(airport));
}

} // namespace

PreviewFrame sketchFrame(const AirportElement& airport, const PreviewFrame::Rect& picture) {
    const irr::core::dimension2d<uint32_t> size(static_cast<uint32_t>(std::max(0, picture.getWidth())),
                                                static_cast<uint32_t>(std::max(0, picture.getHeight())));
    const double factor =
        withSketch(airport, [&size](const AirportSketch& sketch) { return sketch.getPositionFactor(size); });
    return {airport.position, factor, picture};
}

std::optional<RunwayArrow> pointToRunway(const AirportElement& airport, const AppRunway& runway,
                                         const PreviewFrame::Rect& picture) {
    if (runway.runwayIndex < 0 || static_cast<size_t>(runway.runwayIndex) >= airport.runways.size())
        return std::nullopt;
    const double factor = sketchFrame(airport, picture).getPixelsPerMetre();
    return withSketch(airport, [&](const AirportSketch& sketch) -> std::optional<RunwayArrow> {
        const auto& ends = sketch.getStrips()[static_cast<size_t>(runway.runwayIndex)].ends;
        const AirportSketch::Point landing = ends[runway.primary ? 0 : 1],
                                   along = ends[runway.primary ? 1 : 0] - landing;
        const PreviewFrame::Point middle = picture.getCenter();
        return RunwayArrow{{middle.X + static_cast<int>(std::lround(factor * landing.X)),
                            middle.Y - static_cast<int>(std::lround(factor * landing.Y))},
                           std::atan2(along.X, along.Y) * DegreesPerRadian};
    });
}

} // namespace skyvane
