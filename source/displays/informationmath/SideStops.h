#pragma once

#include "displays/gauges/ShortText.h"
#include "displays/informationmath/SideAxes.h"

#include <functional>
#include <vector>

namespace skyvane {

struct ProcedureLocation;
struct RouteProfile;

/// A course point: where a procedure of the plan ends.
struct SideStop {
    double index = 0.0; ///< Of the profile.
    double altitudeMetres = 0.0;
    ShortText name;
    ShortText altitude; ///< "3000 ft", or "Auto" where nobody chose one.
};

std::vector<SideStop> listSideStops(const RouteProfile& profile, bool metric,
                                    const std::function<ShortText(const ProcedureLocation&)>& nameOf);

/// The course point nearest to a place of the screen, within half of the size of it; -1 for none.
int findSideStop(const std::vector<SideStop>& stops, const SideAxes& axes, const ShapePoint& place,
                 const ShapePoint& size);

/// Of the ground below a point of the profile, between two points the higher; nothing where it isn't known.
bool groundAt(const RouteProfile& profile, double index, double& metres);

} // namespace skyvane
