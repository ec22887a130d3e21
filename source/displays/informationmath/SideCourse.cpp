#include "displays/informationmath/SideDrawing.h"
#include "procedures/plan/RouteProfile.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr float lineWidth = 3.0f, casingWidth = 6.0f;
constexpr double stopShare = 0.45; ///< Half a course point's diamond, of the height of digits.

uint32_t colorAt(const SideScene& scene, size_t index) {
    const RouteProfile& profile = *scene.profile;
    const bool isCurrent = scene.stops->empty() || static_cast<double>(index) < scene.stops->front().index;
    const uint32_t plain = isCurrent ? SideColor::course : SideColor::succeeding;
    if (!profile.known[index])
        return plain;
    const float above = profile.pathAltitudes[index] - profile.heights[index];
    if (above < -static_cast<float>(groundErrorMetres))
        return SideColor::inGround;
    return above < static_cast<float>(lowMetres) ? SideColor::low : plain;
}

ShapePoint pointAt(const SideScene& scene, size_t index) {
    return scene.axes.toScreen(static_cast<double>(index), static_cast<double>(scene.profile->pathAltitudes[index]));
}

void addCasing(SideTools& tools, const SideScene& scene, size_t begin, size_t end) {
    tools.path.clear();
    for (size_t i = begin; i < end; ++i)
        tools.path.push_back(pointAt(scene, i));
    addStroke(tools.canvas.layers[BarCanvas::Scale].shapes, tools.path,
              {casingWidth, SideColor::casing, false, 0.0f, 0.0f}, scene.axes.panel);
}

/// Each stretch of a colour to the first point of the next one.
void addLines(SideTools& tools, const SideScene& scene, size_t begin, size_t end) {
    for (size_t i = begin; i + 1 < end;) {
        const uint32_t color = colorAt(scene, i);
        tools.path.assign(1, pointAt(scene, i));
        size_t next = i + 1;
        for (; next < end; ++next) {
            tools.path.push_back(pointAt(scene, next));
            if (colorAt(scene, next) != color)
                break;
        }
        addStroke(tools.canvas.layers[BarCanvas::Scale].shapes, tools.path, {lineWidth, color, false, 0.0f, 0.0f},
                  scene.axes.panel);
        i = next;
    }
}

void addStop(SideTools& tools, const SideScene& scene, const SideStop& stop, bool isSelected) {
    ShapePoint p = scene.axes.toScreen(stop.index, stop.altitudeMetres);
    const double half = (isSelected ? 1.4 : 1.0) * stopShare * scene.textHeight + 2.0, rim = 2.0;
    const double edge = scene.axes.panel.LowerRightCorner.X;
    if (p.X <= edge) // the last one lies on the edge of the picture
        p.X = std::min(p.X, edge - half - rim);
    const auto diamond = [&](double size, uint32_t color) {
        tools.pen.polygon(BarCanvas::Box, {{p.X, p.Y - size}, {p.X + size, p.Y}, {p.X, p.Y + size}, {p.X - size, p.Y}},
                          color);
    };
    diamond(half + rim, SideColor::casing);
    diamond(half, isSelected ? SideColor::selected : SideColor::ink);
    diamond(half - rim, isSelected ? SideColor::box : SideColor::course);
}

} // namespace

void addSideCourse(SideTools& tools, const SideScene& scene) {
    const size_t end = std::min(scene.axes.end(), scene.profile->pathAltitudes.size());
    const size_t begin = std::min(scene.axes.begin(), end);
    addCasing(tools, scene, begin, end);
    addLines(tools, scene, begin, end);
    for (size_t i = 0; i < scene.stops->size(); ++i)
        addStop(tools, scene, (*scene.stops)[i], static_cast<int>(i) == scene.selected);
}

} // namespace skyvane
