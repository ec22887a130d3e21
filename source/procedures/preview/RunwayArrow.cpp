#include "procedures/preview/RunwayArrow.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/EarthConstants.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

/// Beyond a runway that fills it, an arrow of a fifth of the picture has room in any direction.
constexpr double sketchShare = 0.58;

/// That of the element when it was read from a chart, or one made for the call.
template <class Use>
auto withSketch(const AirportElement& airport, Use use) {
    return airport.getSketch() ? use(*airport.getSketch()) : use(AirportSketch(airport));
}

} // namespace

PreviewFrame::Rect sketchRect(const PreviewFrame::Rect& picture) {
    const int x = static_cast<int>(picture.getWidth() * (1.0 - sketchShare) / 2.0);
    const int y = static_cast<int>(picture.getHeight() * (1.0 - sketchShare) / 2.0);
    return {picture.UpperLeftCorner.X + x, picture.UpperLeftCorner.Y + y, picture.LowerRightCorner.X - x,
            picture.LowerRightCorner.Y - y};
}

PreviewFrame sketchFrame(const AirportElement& airport, const PreviewFrame::Rect& picture) {
    const PreviewFrame::Rect middle = sketchRect(picture);
    const irr::core::dimension2d<uint32_t> size(static_cast<uint32_t>(std::max(0, middle.getWidth())),
                                                static_cast<uint32_t>(std::max(0, middle.getHeight())));
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
