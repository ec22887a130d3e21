#pragma once

#include "demo/region/AirportPlans.h"
#include "demo/region/Landscape.h"

#include <string>
#include <vector>

namespace skyvane::demo {

/// An airport in its place. Without a runway both ends are the same spot.
struct Airport {
    const AirportPlan* plan;
    Spot from; ///< The threshold with the lower number.
    Spot to;
    double fromMetres;
    double toMetres;
    double headingTrueDegrees; ///< From `from` to `to`.

    bool hasRunway() const { return plan->lengthFeet > 0; }
    bool isOnWater() const { return plan->site == AirportPlan::Site::Lake; }
    Spot middle() const { return blend(from, to, 0.5); }
    double elevationMetres() const { return std::fmax(fromMetres, toMetres); }
    /// "09" and "27", by the magnetic heading.
    std::string endName(bool first) const;
};

struct Town {
    const TownPlan* plan;
    Spot middle;
};

struct Sites {
    std::vector<Airport> airports;
    std::vector<Town> towns;

    const Airport& airport(const std::string& ident) const;
    const Town& town(const std::string& name) const;
};

/// Finds the flattest fitting place for each planned airport, levels its runway, and then settles the towns where it is
/// low and level near water.
Sites settle(Landscape& landscape);

} // namespace skyvane::demo
