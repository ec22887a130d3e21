#include "displays/mapmath/elements/RunwayShapes.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr RunwayLook looks[] = {
    {0xff33363c, 0xffeef0f2, 0xffeef0f2, 0xff000000, "paved"}, {0xff5d5349, 0xffe3d6c4, 0xffcfc2b0, 0xff784600, "worn"},
    {0xff8fc46a, 0xfff3fbe6, 0, 0xff008000, "grass"},          {0xff4a90d9, 0xffd9ecff, 0, 0xff0000ff, "water"},
    {0xff8a7f6e, 0xffefe7da, 0, 0xff784600, "unknown"},
};

/// In pixels of width: from here on a runway has room for what is painted on it.
constexpr double roomForCentreLine = 5.0, roomForThresholds = 9.0;
constexpr int thresholdBars = 6;

void addMarks(ShapeMesh& mesh, const ShapePoint& first, const ShapePoint& along, double length, double width,
              uint32_t argb, const ShapeRect& view) {
    const ShapePoint across(along.Y, -along.X);
    const double keys = width >= roomForThresholds ? 0.8 * width : 0.0;
    for (int bar = 0; keys > 0.0 && bar < thresholdBars; ++bar) {
        const ShapePoint side = across * ((bar + 0.5) / thresholdBars - 0.5) * 0.82 * width;
        const Stroke stroke{static_cast<float>(0.07 * width), argb, false, 0.0f, 0.0f};
        for (const ShapePoint& end : {first + along * 0.12 * width, first + along * (length - 0.12 * width - keys)})
            addStroke(mesh, {end + side, end + side + along * keys}, stroke, view);
    }
    const double from = keys > 0.0 ? 1.3 * width : 0.5 * width;
    if (length <= 2.0 * from)
        return;
    const float dash = static_cast<float>(std::max(4.0, 0.9 * width));
    const Stroke centre{static_cast<float>(std::clamp(0.07 * width, 0.8, 3.0)), argb, false, dash, 0.7f * dash};
    addStroke(mesh, {first + along * from, first + along * (length - from)}, centre, view);
}

} // namespace

const RunwayLook& runwayLook(uint32_t surface) {
    return looks[std::min<uint32_t>(surface, Runway::UnknownSurface)];
}

const Runway* mainRunway(const AirportElement& airport) {
    const auto longest = std::max_element(airport.runways.begin(), airport.runways.end(),
                                          [](const Runway& a, const Runway& b) { return a.lengthFeet < b.lengthFeet; });
    return longest == airport.runways.end() ? nullptr : &*longest;
}

void addRunway(ShapeMesh& mesh, const ShapePoint& first, const ShapePoint& second, double width, double leastWidth,
               const RunwayLook& look, const ShapeRect& view) {
    const double length = first.getDistanceFrom(second);
    if (!(length > 0.0) || isBeyond({view.UpperLeftCorner.X - width, view.UpperLeftCorner.Y - width,
                                     view.LowerRightCorner.X + width, view.LowerRightCorner.Y + width},
                                    first, second))
        return;
    const double drawn = std::max(width, leastWidth);
    const double rim = std::clamp(0.09 * drawn, 0.9, 2.0);
    const ShapePoint along = (second - first) / length;
    const auto strip = [&](double half, double beyond, uint32_t argb) {
        const ShapePoint across = ShapePoint(along.Y, -along.X) * half;
        const ShapePoint from = first - along * beyond, to = second + along * beyond;
        addConvex(mesh, {from - across, from + across, to + across, to - across}, argb);
    };
    strip(0.5 * drawn + rim, rim, look.edge);
    strip(0.5 * drawn, 0.0, look.fill);
    if (look.marks && drawn >= roomForCentreLine)
        addMarks(mesh, first, along, length, drawn, look.marks, view);
}

std::string runwayLengthText(const Runway& runway, bool metric, bool withWidth) {
    if (runway.lengthFeet < 1)
        return {};
    const auto shown = [metric](uint32_t feet) { return toText(roundHalfAway(metric ? feet * MetresPerFoot : feet)); };
    const bool hasWidth = withWidth && runway.widthFeet >= 1;
    return shown(runway.lengthFeet) + (hasWidth ? " x " + shown(runway.widthFeet) : "") + (metric ? " m" : " ft");
}

} // namespace skyvane
