#include "displays/mapmath/elements/OutlineSketch.h"

#include "chart/elements/AirspaceElement.h"
#include "chart/elements/AirwayElement.h"
#include "chart/elements/AltitudeCodes.h"
#include "chart/elements/GroundGeometryElement.h"
#include "chart/geodesy/LocalFrame.h"
#include "core/text/Numbers.h"
#include "displays/mapmath/elements/AirspaceStyles.h"
#include "displays/mapmath/elements/GroundShapes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {

namespace {

constexpr double lineSpacing = 1.15;
constexpr uint32_t textColor = 0xffffffff;

using Lines = std::vector<std::string>;

double textHeightOf(const SketchFrame& frame) {
    return 1.1 * sketchTextHeight(frame);
}

ShapeRect viewOf(const SketchFrame& frame) {
    return {0.0, 0.0, static_cast<double>(frame.size.Width), static_cast<double>(frame.size.Height)};
}

/// The vertices in pixels, fitted into what the text leaves of the picture.
ShapePath fit(const std::vector<ChartPosition>& vertices, const SketchFrame& frame, size_t lines) {
    ShapePath path;
    const double huge = std::numeric_limits<double>::max();
    ShapePoint low(huge, huge), high(-huge, -huge);
    for (const ChartPosition& vertex : vertices) {
        const auto place = ChartPosition2Vector3df64(vertices.front(), vertex, 0.0);
        path.emplace_back(place.X, -place.Z);
        low = ShapePoint(std::min(low.X, place.X), std::min(low.Y, -place.Z));
        high = ShapePoint(std::max(high.X, place.X), std::max(high.Y, -place.Z));
    }
    if (path.empty())
        return path;
    const double height = textHeightOf(frame), margin = 0.8 * height;
    const double top = frame.size.Height - lineSpacing * height * static_cast<double>(lines) - 0.3 * height;
    const ShapePoint room(std::max(4.0, frame.size.Width - 2.0 * margin), std::max(4.0, top - 2.0 * margin));
    const ShapePoint extent = high - low;
    const double factor = std::min(room.X / std::max(extent.X, 1.0), room.Y / std::max(extent.Y, 1.0));
    const ShapePoint middle(0.5 * frame.size.Width, 0.5 * top);
    for (ShapePoint& point : path)
        point = middle + (point - (low + high) / 2.0) * factor;
    return path;
}

void addLines(SketchPlan& plan, const Lines& lines, const SketchFrame& frame) {
    const double height = textHeightOf(frame);
    double y = frame.size.Height - lineSpacing * height * static_cast<double>(lines.size()) + 0.35 * height;
    for (const std::string& line : lines) {
        const double share = std::min(1.0, 0.94 * frame.size.Width / std::max(1.0, frame.widthOf(line, height)));
        plan.texts.push_back({line, ShapePoint(0.5 * frame.size.Width, y), height * share, 0.0, textColor});
        y += lineSpacing * height;
    }
}

void addAltitude(Lines& lines, const char* kind, const AirwayElement::Altitude& altitude, bool metric) {
    if (altitude.isAvailable)
        lines.push_back(kind + toText(displayedAltitude(altitude.feet, metric)) + (metric ? " m" : " ft"));
}

void addArrowHead(SketchPlan& plan, const ShapePoint& from, const ShapePoint& tip, double size, uint32_t argb) {
    const ShapePoint way = tip - from;
    const double length = way.getLength();
    if (!(length > 0.0))
        return;
    const ShapePoint back = way * (size / length), side(-0.45 * back.Y, 0.45 * back.X);
    addConvex(plan.shapes, {tip, tip - back + side, tip - back - side}, argb);
}

bool isEmpty(const SketchFrame& frame) {
    return frame.size.Width < 4 || frame.size.Height < 4;
}

} // namespace

SketchPlan planAirspaceSketch(const AirspaceElement& airspace, const SketchFrame& frame) {
    SketchPlan plan;
    if (isEmpty(frame))
        return plan;
    addSketchGround(plan, frame);
    Lines lines{airspace.getIndicatedLabel(false, frame.metric)};
    if (!airspace.name.empty())
        lines[0] += "  " + airspace.name;
    const std::string limits = airspaceLimits(airspace, frame.metric);
    if (!limits.empty())
        lines.push_back(limits + (frame.metric ? " m" : " ft"));
    const AirspaceStyle& style = airspaceStyle(airspace.airspaceClass);
    const ShapePath path = fit(airspace.vertices, frame, lines.size());
    const double band = style.bandFactor * 0.9 * sketchTextHeight(frame);
    addBand(plan.shapes, path, airspace.excludes ? -band : band, withAlpha(style.argb, 0.5), withAlpha(style.argb, 0.1),
            viewOf(frame));
    addStroke(plan.shapes, path, {2.0f * style.widthFactor, style.argb, true, 0.0f, 0.0f}, viewOf(frame));
    addLines(plan, lines, frame);
    return plan;
}

SketchPlan planAirwaySketch(const AirwayElement& airway, const SketchFrame& frame) {
    SketchPlan plan;
    if (isEmpty(frame))
        return plan;
    addSketchGround(plan, frame);
    Lines lines{airway.name};
    addAltitude(lines, "MEA ", airway.minimumEnroute, frame.metric);
    addAltitude(lines, "MOCA ", airway.minimumObstructionClearance, frame.metric);
    addAltitude(lines, "MAA ", airway.maximumAuthorised, frame.metric);
    const ShapePath path = fit({airway.start, airway.end}, frame, lines.size());
    const uint32_t argb = airwayColor(airway.isLowAltitude);
    addStroke(plan.shapes, path, {5.0f, airwayCasing, false, 0.0f, 0.0f}, viewOf(frame));
    addStroke(plan.shapes, path, {3.0f, argb, false, 0.0f, 0.0f}, viewOf(frame));
    const double head = 1.2 * sketchTextHeight(frame);
    addArrowHead(plan, path[0], path[1], head, argb);
    if (!airway.isOneDirection)
        addArrowHead(plan, path[1], path[0], head, argb);
    addLines(plan, lines, frame);
    return plan;
}

SketchPlan planGroundSketch(const GroundGeometryElement& element, const SketchFrame& frame) {
    SketchPlan plan;
    if (isEmpty(frame))
        return plan;
    addSketchGround(plan, frame);
    const std::string label = element.getIndicatedLabel(true, frame.metric);
    const Lines lines = label.empty() ? Lines() : Lines{label};
    const ShapePath path = fit(element.vertices, frame, lines.size());
    addGroundFeature(plan.shapes, path, element.feature, element.geoType == GroundGeometryElement::Polygon, 6.0,
                     viewOf(frame));
    addLines(plan, lines, frame);
    return plan;
}

} // namespace skyvane
