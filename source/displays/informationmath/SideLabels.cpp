#include "displays/informationmath/SideLabels.h"

#include "chart/geodesy/EarthConstants.h"
#include "displays/gauges/SegmentFormat.h"
#include "displays/mapmath/elements/AirspaceStyles.h"
#include "displays/visionmath/bars/PfdFormat.h"
#include "procedures/plan/RouteProfile.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace skyvane {
namespace {

constexpr double lineShare = 1.65, padShare = 0.55, gapShare = 1.5; // of the height of digits
constexpr double courseStep = 12.0, courseReach = 4.0;              // pixels
constexpr double leastBandWidth = 3.0, leastBandHeight = 3.0;

ShapeRect common(const ShapeRect& a, const ShapeRect& b) {
    return {std::max(a.UpperLeftCorner.X, b.UpperLeftCorner.X), std::max(a.UpperLeftCorner.Y, b.UpperLeftCorner.Y),
            std::min(a.LowerRightCorner.X, b.LowerRightCorner.X), std::min(a.LowerRightCorner.Y, b.LowerRightCorner.Y)};
}

/// At the blank nearest to the middle; false without one.
bool splitInTwo(const ShortText& text, ShortText& first, ShortText& second) {
    const std::wstring_view all = text.view();
    const size_t after = all.find(L' ', all.size() / 2), before = all.rfind(L' ', all.size() / 2);
    size_t blank = before;
    if (before == std::wstring_view::npos ||
        (after != std::wstring_view::npos && after - all.size() / 2 < all.size() / 2 - before))
        blank = after;
    if (blank == std::wstring_view::npos)
        return false;
    first = ShortText().append(all.substr(0, blank));
    second = ShortText().append(all.substr(blank + 1));
    return true;
}

bool isEmpty(const ShapeRect& rect) {
    return !(rect.getWidth() > 0.0) || !(rect.getHeight() > 0.0);
}

} // namespace

void SideLabels::add(SideTools& tools, const SideScene& scene) {
    prepare(scene);
    if (scene.selected >= 0 && scene.selected < static_cast<int>(scene.stops->size()))
        addStop(tools, scene, static_cast<size_t>(scene.selected));
    for (size_t i = 0; i < scene.stops->size(); ++i)
        if (static_cast<int>(i) != scene.selected)
            addStop(tools, scene, i);
    addAirspaces(tools, scene, true);
    addAirspaces(tools, scene, false);
}

void SideLabels::prepare(const SideScene& scene) {
    ShapeRect bounds = freeRectOf(scene);
    bounds.UpperLeftCorner += ShapePoint(2.0, 2.0);
    bounds.LowerRightCorner -= ShapePoint(2.0, 2.0);
    space_.clear(bounds);
    for (const ShapeRect& taken : {scene.buttons, scene.aircraftBox, scene.altitudeBox, scene.notesBox})
        if (!isEmpty(taken))
            space_.block(taken);
    const double reach = 0.8 * scene.textHeight;
    for (const SideStop& stop : *scene.stops) {
        const ShapePoint p = scene.axes.toScreen(stop.index, stop.altitudeMetres);
        space_.block({p.X - reach, p.Y - reach, p.X + reach, p.Y + reach});
    }
    avoidCourse(scene);
}

void SideLabels::avoidCourse(const SideScene& scene) {
    const size_t end = std::min(scene.axes.end(), scene.profile->pathAltitudes.size());
    for (size_t i = std::min(scene.axes.begin(), end); i < end;) {
        const double left = scene.axes.xOf(static_cast<double>(i));
        double x = left, high = 1e30, low = -1e30;
        for (; i < end && x - left < courseStep; ++i) {
            const ShapePoint p =
                scene.axes.toScreen(static_cast<double>(i), static_cast<double>(scene.profile->pathAltitudes[i]));
            x = p.X;
            high = std::min(high, p.Y);
            low = std::max(low, p.Y);
        }
        space_.avoid({left, high - courseReach, x + 1.0, low + courseReach});
    }
}

ShapePoint SideLabels::sizeOf(SideTools& tools, const SideScene& scene, const Label& label) const {
    double width = 0.0;
    for (size_t i = 0; i < label.count; ++i)
        width = std::max(width, tools.measure.measure(label.lines[i], scene.textHeight));
    const double pad = padShare * scene.textHeight;
    return {width + 2.0 * pad, static_cast<double>(label.count) * lineShare * scene.textHeight + pad};
}

void SideLabels::draw(SideTools& tools, const SideScene& scene, const Label& label, const ShapeRect& place) {
    tools.pen.rect(BarCanvas::Box, place, label.ground);
    tools.pen.frame(BarCanvas::Box, place, label.frameWidth, label.frame);
    BarText words;
    words.height = scene.textHeight;
    words.argb = label.ink;
    const double pitch = lineShare * scene.textHeight;
    const double first = middleY(place) - 0.5 * static_cast<double>(label.count - 1) * pitch;
    for (size_t i = 0; i < label.count; ++i) {
        words.text = label.lines[i];
        words.place = ShapePoint(middleX(place), first + static_cast<double>(i) * pitch);
        tools.pen.text(BarCanvas::Box, words);
    }
    space_.block(place);
    placed_ = place;
}

bool SideLabels::place(SideTools& tools, const SideScene& scene, const Label& label, bool mayHide) {
    const ShapePoint size = sizeOf(tools, scene, label);
    for (const ShapePoint& middle : middles_) {
        const ShapeRect rect = space_.within(middle, size);
        if (!space_.isFree(rect, mayHide))
            continue;
        draw(tools, scene, label, rect);
        return true;
    }
    return false;
}

void SideLabels::addStop(SideTools& tools, const SideScene& scene, size_t index) {
    const SideStop& stop = (*scene.stops)[index];
    const ShapePoint p = scene.axes.toScreen(stop.index, stop.altitudeMetres);
    if (p.X < scene.axes.panel.UpperLeftCorner.X || p.X > scene.axes.panel.LowerRightCorner.X)
        return;
    Label label;
    label.frame = SideColor::course;
    if (!stop.name.view().empty())
        label.line(stop.name);
    label.line(stop.altitude);
    if (static_cast<int>(index) == scene.selected) {
        label.frame = label.ink = SideColor::selected;
        label.line(formatFixDistance(std::fabs(metresAhead(scene, stop.index)) / MetresPerNauticalMile, scene.metric));
    }
    const ShapePoint size = sizeOf(tools, scene, label);
    const double gap = gapShare * scene.textHeight;
    middles_.clear();
    for (const double level : {1.0, 2.5, 4.5, 7.0})
        for (const double up : {-1.0, 1.0})
            for (const double side : {0.0, -0.6, 0.6})
                middles_.emplace_back(p.X + side * (size.X + gap), p.Y + up * (0.5 * size.Y + gap * level));
    if (!place(tools, scene, label, false) && !place(tools, scene, label, true))
        return;
    // To the edge of the label that looks at the point.
    const ShapePoint edge(std::clamp(p.X, placed_.UpperLeftCorner.X + 3.0, placed_.LowerRightCorner.X - 3.0),
                          std::clamp(p.Y, placed_.UpperLeftCorner.Y, placed_.LowerRightCorner.Y));
    tools.path.clear();
    tools.path.push_back(p);
    tools.path.push_back(edge);
    addStroke(tools.canvas.layers[BarCanvas::Scale].shapes, tools.path, {1.5f, label.frame, false, 0.0f, 0.0f},
              scene.axes.panel);
}

void SideLabels::addAirspaces(SideTools& tools, const SideScene& scene, bool crossed) {
    // Last drawn, first labelled.
    for (auto each = scene.airspaces->rbegin(); each != scene.airspaces->rend(); ++each)
        if (each->isCrossed == crossed)
            addAirspace(tools, scene, *each);
}

bool SideLabels::isOverGround(const SideScene& scene, const ShapeRect& place) const {
    double metres = 0.0;
    const bool known = groundAt(*scene.profile, std::max(0.0, scene.axes.indexAt(middleX(place))), metres);
    return !known || place.LowerRightCorner.Y <= scene.axes.yOf(metres) + 0.5 * place.getHeight();
}

bool SideLabels::placeInBand(SideTools& tools, const SideScene& scene, const Label& label, bool mayOverhang,
                             bool mayHide) {
    const ShapePoint size = sizeOf(tools, scene, label);
    const double gap = 3.0, width = band_.getWidth(), height = band_.getHeight();
    const bool overhangs = size.X + 2.0 * gap > width || size.Y + 2.0 * gap > height;
    if (overhangs && !mayOverhang)
        return false;
    const double left = band_.UpperLeftCorner.X, top = band_.UpperLeftCorner.Y;
    const double spareX = std::max(0.0, width - size.X - 2.0 * gap),
                 spareY = std::max(0.0, height - size.Y - 2.0 * gap);
    const double x0 = spareX > 0.0 ? left + gap + 0.5 * size.X : left + 0.5 * width;
    const double y0 = spareY > 0.0 ? top + gap + 0.5 * size.Y : top + 0.5 * height;
    const int rows = std::min(12, 1 + static_cast<int>(spareY / (0.5 * size.Y)));
    middles_.clear();
    for (int row = 0; row < rows; ++row)
        for (const double share : {0.5, 0.25, 0.75, 0.0, 1.0}) {
            const ShapePoint middle(x0 + share * spareX, rows > 1 ? y0 + spareY * row / (rows - 1) : y0);
            if (isOverGround(scene, space_.within(middle, size)))
                middles_.push_back(middle);
        }
    return place(tools, scene, label, mayHide);
}

void SideLabels::addAirspace(SideTools& tools, const SideScene& scene, const SideAirspace& airspace) {
    if (!outlineSideAirspace(airspace, *scene.profile, scene.axes, upper_, lower_))
        return;
    band_ = ShapeRect(upper_.front(), upper_.front());
    for (const ShapePath* edge : {&upper_, &lower_})
        for (const ShapePoint& point : *edge)
            band_.addInternalPoint(point);
    band_ = common(band_, freeRectOf(scene));
    if (band_.getWidth() < leastBandWidth || band_.getHeight() < leastBandHeight)
        return;
    Label label;
    label.frame = airspace.style->argb;
    label.frameWidth = airspace.isCrossed ? 3.0 : 1.5;
    label.ground = airspace.isCrossed ? withAlpha(darkened(airspace.style->argb), 0.88) : SideColor::box;
    label.line(airspace.name);
    label.line(airspace.limits);
    Label narrow = label;
    narrow.count = 0;
    narrow.line({});
    narrow.line({});
    narrow.line(airspace.limits);
    if (!splitInTwo(airspace.name, narrow.lines[0], narrow.lines[1]))
        narrow = label;
    Label brief = label;
    brief.count = 0;
    brief.line(airspace.limits);
    for (const bool mayHide : {false, true})
        for (const bool mayOverhang : {false, true})
            for (const Label* each : {&label, &narrow, &brief})
                if (placeInBand(tools, scene, *each, mayOverhang, mayHide))
                    return;
}

} // namespace skyvane
