#include "displays/mapmath/elements/AirportSketchPlan.h"

#include "chart/elements/AirportElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "displays/labels/OverlapPreventer.h"
#include "displays/mapmath/elements/GroundShapes.h"
#include "displays/mapmath/elements/RunwayShapes.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {

namespace {

constexpr uint32_t grassEdge = 0xff26382b, identColor = 0xffffffff, lengthColor = 0xffffe08a, frameColor = 0xffdfe6ec;
constexpr double degreesPerRadian = 57.29577951308232;
constexpr double leastExtentMetres = 200.0;
constexpr double textHeightsAround = 1.9;
constexpr double leastRunwayWidth = 4.0;
constexpr double leastTurnedHeight = 13.0;
constexpr int labelRounds = 40;

using Strip = AirportSketch::Strip;

using Scale = SketchScale;

ShapeRect viewOf(const SketchFrame& frame) {
    return {0.0, 0.0, static_cast<double>(frame.size.Width), static_cast<double>(frame.size.Height)};
}

void addGround(SketchPlan& plan, const AirportGround& ground, const Scale& scale, const SketchFrame& frame) {
    ShapePath path;
    for (const AirportGround::Feature& feature : ground.features) {
        path.clear();
        for (const ShapePoint& point : feature.points)
            path.push_back(scale(point));
        addGroundFeature(plan.shapes, path, feature.feature, feature.isPolygon,
                         std::max(1.2, feature.widthMetres * scale.factor), viewOf(frame));
    }
}

ShapePoint towards(const ShapePoint& from, const ShapePoint& to) {
    const ShapePoint along = to - from;
    const double length = along.getLength();
    return length > 0.0 ? along / length : ShapePoint(0.0, -1.0);
}

/// The idents stand beyond the ends, and are pushed apart where ends meet.
void addIdents(SketchPlan& plan, const AirportElement& airport, const std::vector<Strip>& strips, const Scale& scale,
               const SketchFrame& frame) {
    const double height = sketchTextHeight(frame);
    OverlapPreventer preventer;
    for (size_t i = 0; i < strips.size() && i < airport.runways.size(); ++i)
        for (size_t end = 0; end < 2; ++end) {
            const std::string ident = airport.runways[i].getEndLabel(end);
            const ShapePoint at = scale(strips[i].ends[end]), out = towards(scale(strips[i].ends[1 - end]), at);
            const double width = frame.widthOf(ident, height);
            const ShapePoint middle = at + ShapePoint(out.X * (0.5 * width + 0.3 * height), out.Y * 0.85 * height);
            const ShapePoint half(0.5 * width + 1.0, 0.5 * height);
            preventer.getRecords().emplace_back(ShapeRect(middle - half, middle + half), nullptr,
                                                static_cast<int>(plan.texts.size()), 1.0);
            plan.texts.push_back({ident, middle, height, 0.0, identColor});
        }
    preventer.overlapSolver(labelRounds);
    const ShapeRect view = viewOf(frame);
    for (const OverlapRecord& record : preventer.getRecords()) {
        const ShapePoint half(0.5 * record.width, 0.5 * record.height);
        ShapePoint& middle = plan.texts[static_cast<size_t>(record.index)].middle;
        middle = record.rectangle.getCenter();
        middle.X = std::clamp(middle.X, half.X, std::max(half.X, view.LowerRightCorner.X - half.X));
        middle.Y = std::clamp(middle.Y, half.Y, std::max(half.Y, view.LowerRightCorner.Y - half.Y));
    }
}

double distanceToOthers(const std::vector<Strip>& strips, size_t own, const Scale& scale, const ShapePoint& place) {
    double nearest = std::numeric_limits<double>::max();
    for (size_t i = 0; i < strips.size(); ++i)
        if (i != own)
            nearest =
                std::min(nearest, distanceToPath({scale(strips[i].ends[0]), scale(strips[i].ends[1])}, false, place));
    return nearest;
}

constexpr size_t noStrip = std::numeric_limits<size_t>::max();

/// Whether runways come closer to the left end of a line of the picture than to its right end.
bool isLeftCloser(const std::vector<Strip>& strips, const Scale& scale, const SketchFrame& frame, double y) {
    const double width = frame.size.Width;
    return distanceToOthers(strips, noStrip, scale, {0.0, y}) < distanceToOthers(strips, noStrip, scale, {width, y});
}

/// Where turned text would be too small to read: that of the longest runway, in the freer of the lower corners.
void addMainLength(SketchPlan& plan, const AirportElement& airport, const std::vector<Strip>& strips,
                   const Scale& scale, const SketchFrame& frame) {
    const Runway* runway = mainRunway(airport);
    const std::string text = runway ? runwayLengthText(*runway, frame.metric, false) : std::string();
    if (text.empty())
        return;
    const double height = sketchTextHeight(frame), x = 0.5 * frame.widthOf(text, height) + 5.0,
                 y = frame.size.Height - 0.5 * height - 3.0;
    const bool isRight = isLeftCloser(strips, scale, frame, frame.size.Height);
    plan.texts.push_back({text, ShapePoint(isRight ? frame.size.Width - x : x, y), height, 0.0, lengthColor});
}

/// A length to be written along a runway.
struct LengthText {
    size_t strip;
    ShapePoint along; ///< The direction of reading.
    double width;
    double height;

    ShapePath lineAt(const ShapePoint& middle) const {
        return {middle - along * (0.5 * width), middle, middle + along * (0.5 * width)};
    }
};

/// How far the text would keep from other runways and from lengths that are placed already.
double roomFor(const LengthText& text, const ShapePoint& middle, const std::vector<Strip>& strips, const Scale& scale,
               const std::vector<ShapePath>& placed) {
    double room = 3.0 * text.height; // more is no better
    for (const ShapePoint& point : text.lineAt(middle)) {
        room = std::min(room, distanceToOthers(strips, text.strip, scale, point) - 0.5 * text.height);
        for (const ShapePath& other : placed)
            room = std::min(room, distanceToPath(other, false, point) - text.height);
    }
    return room;
}

/// Beside the runway, where the most room is; in the middle where that is as good.
ShapePoint freestPlace(const LengthText& text, const std::vector<Strip>& strips, const Scale& scale,
                       const std::vector<ShapePath>& placed) {
    const Strip& strip = strips[text.strip];
    const ShapePoint a = scale(strip.ends[0]), b = scale(strip.ends[1]), across(text.along.Y, -text.along.X);
    const double width = std::max(leastRunwayWidth, scale(strip.corners[0]).getDistanceFrom(scale(strip.corners[1])));
    ShapePoint best;
    double most = -std::numeric_limits<double>::max();
    for (const double share : {0.5, 0.35, 0.65, 0.25, 0.75})
        for (const double side : {1.0, -1.0}) {
            const ShapePoint middle = a + (b - a) * share + across * side * (0.5 * width + 0.75 * text.height);
            const double room = roomFor(text, middle, strips, scale, placed);
            if (room > most + 0.5) {
                most = room;
                best = middle;
            }
        }
    return best;
}

void addLengths(SketchPlan& plan, const AirportElement& airport, const std::vector<Strip>& strips, const Scale& scale,
                const SketchFrame& frame) {
    const double height = 0.85 * sketchTextHeight(frame);
    if (height < leastTurnedHeight)
        return addMainLength(plan, airport, strips, scale, frame);
    const bool withWidth = frame.size.Width >= 300;
    std::vector<ShapePath> placed;
    for (size_t i = 0; i < strips.size() && i < airport.runways.size(); ++i) {
        const std::string words = runwayLengthText(airport.runways[i], frame.metric, withWidth);
        const ShapePoint a = scale(strips[i].ends[0]), b = scale(strips[i].ends[1]);
        const double width = frame.widthOf(words, height);
        if (words.empty() || width > 0.85 * a.getDistanceFrom(b))
            continue;
        const ShapePoint along = a.X <= b.X ? towards(a, b) : towards(b, a);
        const LengthText text{i, along, width, height};
        const ShapePoint middle = freestPlace(text, strips, scale, placed);
        placed.push_back(text.lineAt(middle));
        plan.texts.push_back({words, middle, height, -std::atan2(along.Y, along.X) * degreesPerRadian, lengthColor});
    }
}

void addNorthArrow(SketchPlan& plan, const SketchFrame& frame, bool isRight) {
    const double size = 0.8 * sketchTextHeight(frame);
    const double x = 0.9 * size + 3.0;
    const ShapePoint tip(isRight ? frame.size.Width - x : x, 0.5 * size + 2.0);
    addConvex(plan.shapes, {tip, tip + ShapePoint(0.45 * size, 1.15 * size), tip + ShapePoint(0.0, 0.85 * size)},
              frameColor);
    addConvex(plan.shapes, {tip, tip + ShapePoint(0.0, 0.85 * size), tip + ShapePoint(-0.45 * size, 1.15 * size)},
              withAlpha(frameColor, 0.55));
    plan.texts.push_back({"N", tip + ShapePoint(0.0, 1.75 * size), size, 0.0, frameColor});
}

void addScaleBar(SketchPlan& plan, const SketchFrame& frame, bool isRight) {
    if (frame.size.Width < 220 || frame.size.Height < 150)
        return;
    const double unit = frame.metric ? 1.0 : MetresPerFoot;
    double value = 50.0;
    for (const double candidate : {100.0, 200.0, 500.0, 1000.0, 2000.0, 5000.0, 10000.0})
        if (candidate * unit * plan.pixelsPerMetre <= 0.25 * frame.size.Width)
            value = candidate;
    const double length = value * unit * plan.pixelsPerMetre, height = 0.72 * sketchTextHeight(frame);
    const double x = 0.6 * height + 2.0;
    const ShapePoint left(isRight ? frame.size.Width - x - length : x, frame.size.Height - 0.6 * height - 2.0),
        up(0.0, -0.35 * height);
    const Stroke stroke{1.6f, frameColor, false, 0.0f, 0.0f};
    addStroke(plan.shapes, {left + up, left, left + ShapePoint(length, 0.0), left + up + ShapePoint(length, 0.0)},
              stroke, viewOf(frame));
    const std::string text = std::to_string(static_cast<int>(value)) + (frame.metric ? " m" : " ft");
    plan.texts.push_back({text, left + ShapePoint(0.5 * length, -0.75 * height), height, 0.0, frameColor});
}

/// An airport of which no runway is known.
void addPad(SketchPlan& plan, const AirportElement& airport, const SketchFrame& frame) {
    const double size = 0.28 * std::min(frame.size.Width, frame.size.Height);
    const ShapePoint middle(0.5 * frame.size.Width, 0.5 * frame.size.Height);
    addDisc(plan.shapes, middle, 1.25 * size, frameColor);
    addDisc(plan.shapes, middle, 1.15 * size, 0xff4a4f57);
    if (!airport.isHeliport)
        return addDisc(plan.shapes, middle, 0.85 * size, SketchGrass);
    const float width = static_cast<float>(0.22 * size);
    const ShapeRect view = viewOf(frame);
    for (const double x : {-0.42, 0.42})
        addStroke(plan.shapes, {middle + ShapePoint(x, -0.62) * size, middle + ShapePoint(x, 0.62) * size},
                  {width, identColor, false, 0.0f, 0.0f}, view);
    addStroke(plan.shapes, {middle + ShapePoint(-0.42, 0.0) * size, middle + ShapePoint(0.42, 0.0) * size},
              {width, identColor, false, 0.0f, 0.0f}, view);
}

} // namespace

double sketchTextHeight(const SketchFrame& frame) {
    return std::clamp(0.095 * std::min<double>(frame.size.Height, 0.75 * frame.size.Width), 14.0, 28.0);
}

void addSketchGround(SketchPlan& plan, const SketchFrame& frame) {
    const double w = frame.size.Width, h = frame.size.Height;
    addConvex(plan.shapes, {{0.0, 0.0}, {w, 0.0}, {w, h}, {0.0, h}}, grassEdge);
    addConvex(plan.shapes, {{1.5, 1.5}, {w - 1.5, 1.5}, {w - 1.5, h - 1.5}, {1.5, h - 1.5}}, SketchGrass);
}

SketchScale fitAirportSketch(const AirportSketch& sketch, const SketchFrame& frame) {
    SketchScale scale;
    scale.middle = ShapePoint(0.5 * frame.size.Width, 0.5 * frame.size.Height);
    if (sketch.getStrips().empty())
        return scale;
    const double huge = std::numeric_limits<double>::max();
    ShapePoint low(huge, huge), high(-huge, -huge);
    for (const Strip& strip : sketch.getStrips())
        for (const ShapePoint& corner : strip.corners) {
            low = ShapePoint(std::min(low.X, corner.X), std::min(low.Y, corner.Y));
            high = ShapePoint(std::max(high.X, corner.X), std::max(high.Y, corner.Y));
        }
    const double margin = textHeightsAround * sketchTextHeight(frame);
    const ShapePoint extent(std::max(high.X - low.X, leastExtentMetres), std::max(high.Y - low.Y, leastExtentMetres));
    const ShapePoint room(std::max(10.0, frame.size.Width - 2.0 * margin),
                          std::max(10.0, frame.size.Height - 2.0 * margin));
    scale.centre = (low + high) / 2.0;
    scale.factor = std::min(room.X / extent.X, room.Y / extent.Y);
    return scale;
}

SketchPlan planAirportSketch(const AirportElement& airport, const AirportGround& ground, const SketchFrame& frame) {
    SketchPlan plan;
    if (frame.size.Width < 4 || frame.size.Height < 4)
        return plan;
    addSketchGround(plan, frame);
    // The element's own sketch is of what was read; a preview may be of what is being edited.
    const AirportSketch sketch(airport);
    const std::vector<Strip>& strips = sketch.getStrips();
    if (strips.empty()) {
        addPad(plan, airport, frame);
        return plan;
    }
    const Scale scale = fitAirportSketch(sketch, frame);
    plan.pixelsPerMetre = scale.factor;
    addGround(plan, ground, scale, frame);
    for (const Strip& strip : strips) {
        const double width = strip.corners[0].getDistanceFrom(strip.corners[1]) * scale.factor;
        addRunway(plan.shapes, scale(strip.ends[0]), scale(strip.ends[1]), width, leastRunwayWidth,
                  runwayLook(strip.surface), viewOf(frame));
    }
    addLengths(plan, airport, strips, scale, frame);
    addIdents(plan, airport, strips, scale, frame);
    addNorthArrow(plan, frame, isLeftCloser(strips, scale, frame, 0.0));
    addScaleBar(plan, frame, isLeftCloser(strips, scale, frame, frame.size.Height));
    return plan;
}

} // namespace skyvane
