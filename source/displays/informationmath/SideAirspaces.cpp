#include "displays/informationmath/SideAirspaces.h"

#include "chart/elements/AirspaceElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/store/IChartElementSource.h"
#include "core/text/Utf8.h"
#include "displays/mapmath/elements/AirspaceStyles.h"
#include "procedures/plan/RouteProfile.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {
namespace {

/// An edge beyond the picture lies so far outside of it: its line isn't seen.
constexpr double outsidePixels = 8.0;
constexpr double leastPixels = 2.0;

SideLimit limitOf(int32_t feet, bool isMsl) {
    if (feet == AirspaceElement::Unlimited)
        return {};
    return {true, !isMsl, feet * MetresPerFoot};
}

/// The ground's own altitude counts as the edge of the picture: the ground is drawn over it.
SideLimit floorOf(const AirspaceElement& airspace) {
    const bool isGround = !airspace.isBottomMsl && airspace.bottomFeet <= 0;
    return isGround ? SideLimit() : limitOf(airspace.bottomFeet, airspace.isBottomMsl);
}

double metresAt(const SideLimit& limit, const RouteProfile& profile, size_t index, double open) {
    if (!limit.isSet)
        return open;
    return limit.metres + (limit.isAboveGround ? static_cast<double>(profile.heights[index]) : 0.0);
}

bool enters(const SideAirspace& airspace, const RouteProfile& profile) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (size_t i = airspace.first; i <= airspace.last && i < profile.pathAltitudes.size(); ++i) {
        const auto altitude = static_cast<double>(profile.pathAltitudes[i]);
        if (altitude >= metresAt(airspace.floor, profile, i, -infinity) &&
            altitude <= metresAt(airspace.ceiling, profile, i, infinity))
            return true;
    }
    return false;
}

SideAirspace describe(const AirspaceElement& element, const ProfileAirspaces::Stretch& stretch,
                      const RouteProfile& profile, bool metric) {
    SideAirspace airspace;
    airspace.first = stretch.first;
    airspace.last = stretch.last;
    airspace.floor = floorOf(element);
    airspace.ceiling = limitOf(element.topFeet, element.isTopMsl);
    airspace.style = &airspaceStyle(element.airspaceClass);
    airspace.name.append(decodeUtf8(element.airspaceClass)).append(L"  ").append(decodeUtf8(element.name));
    airspace.limits.append(airspaceLimits(element, metric));
    airspace.isCrossed = enters(airspace, profile);
    return airspace;
}

/// Pixels, from just above the picture to just below it.
double edgeAt(const SideAxes& axes, const SideLimit& limit, const RouteProfile& profile, size_t index, double open) {
    const double above = axes.panel.UpperLeftCorner.Y - outsidePixels;
    const double below = axes.panel.LowerRightCorner.Y + outsidePixels;
    return limit.isSet ? std::clamp(axes.yOf(metresAt(limit, profile, index, 0.0)), above, below) : open;
}

} // namespace

std::vector<SideAirspace> collectSideAirspaces(const RouteProfile& profile, IChartElementSource& charts,
                                               const SideAirspaceChoice& choice) {
    std::vector<SideAirspace> airspaces;
    const size_t points = profile.positions.size();
    if (points < 2)
        return airspaces;
    const double stepMetres = profile.totalMetres / static_cast<double>(points - 1);
    for (ProfileAirspaces::Stretch stretch : profile.airspaces.getStretches()) {
        if (static_cast<double>(stretch.first) * stepMetres > choice.maxDistMetres || stretch.last >= points)
            continue;
        while (stretch.last > stretch.first && static_cast<double>(stretch.last) * stepMetres > choice.maxDistMetres)
            --stretch.last;
        const IChartElement* found = charts.getChartElement(stretch.element);
        if (!found || found->getType() != IChartElement::AIRSPACE)
            continue;
        const auto& element = static_cast<const AirspaceElement&>(*found);
        if (!element.excludes && !(choice.isIrrelevant && choice.isIrrelevant(element.airspaceClass)))
            airspaces.push_back(describe(element, stretch, profile, choice.metric));
    }
    std::stable_sort(airspaces.begin(), airspaces.end(), [](const SideAirspace& a, const SideAirspace& b) {
        return a.style->priority < b.style->priority;
    });
    return airspaces;
}

bool outlineSideAirspace(const SideAirspace& airspace, const RouteProfile& profile, const SideAxes& axes,
                         ShapePath& upper, ShapePath& lower) {
    upper.clear();
    lower.clear();
    const size_t first = std::max(airspace.first, axes.begin()), end = std::min(airspace.last + 1, axes.end());
    if (first >= end || end > profile.heights.size())
        return false;
    const auto add = [&](double x, size_t index) {
        const double top = edgeAt(axes, airspace.ceiling, profile, index, axes.panel.UpperLeftCorner.Y - outsidePixels);
        const double bottom =
            edgeAt(axes, airspace.floor, profile, index, axes.panel.LowerRightCorner.Y + outsidePixels);
        upper.emplace_back(x, std::min(top, bottom));
        lower.emplace_back(x, bottom);
    };
    const double left = axes.xOf(static_cast<double>(first));
    const double right = std::max(axes.xOf(static_cast<double>(end - 1)), left + leastPixels);
    add(left, first);
    if (airspace.floor.isAboveGround || airspace.ceiling.isAboveGround)
        for (size_t i = first + 1; i + 1 < end; ++i)
            add(axes.xOf(static_cast<double>(i)), i);
    add(right, end - 1);
    return std::any_of(upper.begin(), upper.end(),
                       [&axes](const ShapePoint& point) { return point.Y < axes.panel.LowerRightCorner.Y; }) &&
           std::any_of(lower.begin(), lower.end(),
                       [&axes](const ShapePoint& point) { return point.Y > axes.panel.UpperLeftCorner.Y; });
}

} // namespace skyvane
