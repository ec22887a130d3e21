#pragma once

#include "displays/gauges/ShortText.h"
#include "displays/informationmath/SideAxes.h"

#include <functional>
#include <vector>

namespace skyvane {

class AirspaceElement;
class IChartElementSource;
struct AirspaceStyle;
struct RouteProfile;

/// A limit of an airspace, in metres above the sea or above the ground.
struct SideLimit {
    bool isSet = false; ///< Else the band goes on to the edge of the picture.
    bool isAboveGround = false;
    double metres = 0.0;
};

/// An airspace that a course leads through, under, over or into, from one point of the profile to another.
struct SideAirspace {
    size_t first = 0, last = 0;
    SideLimit floor, ceiling;
    const AirspaceStyle* style = nullptr;
    ShortText name;         ///< "D  Sanda CTR"
    ShortText limits;       ///< "SFC - 2500"
    bool isCrossed = false; ///< The course enters it.
};

/// Which of a profile's airspaces are shown.
struct SideAirspaceChoice {
    double maxDistMetres = 0.0; ///< From the beginning of the course.
    bool metric = false;
    std::function<bool(const std::string& airspaceClass)> isIrrelevant;
};

/// What the finished search of the profile has found, in the order of drawing: what stops a pilot comes last.
/// Exclusions are left out: the airspace that they are cut out of is shown whole.
std::vector<SideAirspace> collectSideAirspaces(const RouteProfile& profile, IChartElementSource& charts,
                                               const SideAirspaceChoice& choice);

/// The visible part of its upper and lower edge, from left to right, as many points each. Limits above the ground
/// follow the ground. Beyond the picture the edges lie just outside of it. False when nothing of it can be seen.
bool outlineSideAirspace(const SideAirspace& airspace, const RouteProfile& profile, const SideAxes& axes,
                         ShapePath& upper, ShapePath& lower);

} // namespace skyvane
