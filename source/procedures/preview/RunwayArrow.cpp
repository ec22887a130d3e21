#include "procedures/preview/RunwayArrow.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"
#include "displays/mapmath/elements/AirportSketchPlan.h"

#include <cmath>

namespace skyvane {
namespace {

/// Beyond a runway that fills it, an arrow of a fifth of the picture has room in any direction.
constexpr double sketchShare = 0.7;

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
    SketchFrame frame;
    frame.size = {middle.getWidth(), middle.getHeight()};
    const SketchScale scale =
        withSketch(airport, [&frame](const AirportSketch& sketch) { return fitAirportSketch(sketch, frame); });
    return {Vector3df642ChartPosition(airport.position, {scale.centre.X, 0.0, scale.centre.Y}), scale.factor, picture};
}

std::optional<RunwayArrow> pointToRunway(const AirportElement& airport, const AppRunway& runway,
                                         const PreviewFrame::Rect& picture) {
    if (runway.runwayIndex < 0 || static_cast<size_t>(runway.runwayIndex) >= airport.runways.size())
        return std::nullopt;
    const PreviewFrame frame = sketchFrame(airport, picture);
    return withSketch(airport, [&](const AirportSketch& sketch) -> std::optional<RunwayArrow> {
        const auto& ends = sketch.getStrips()[static_cast<size_t>(runway.runwayIndex)].ends;
        const AirportSketch::Point landing = ends[runway.primary ? 0 : 1];
        const AirportSketch::Point along = ends[runway.primary ? 1 : 0] - landing;
        const ChartPosition threshold = Vector3df642ChartPosition(airport.position, {landing.X, 0.0, landing.Y});
        return RunwayArrow{frame.toPixels(threshold), std::atan2(along.X, along.Y) * DegreesPerRadian};
    });
}

} // namespace skyvane
