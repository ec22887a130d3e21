#pragma once

#include "displays/mapmath/MapSwitches.h"

namespace skyvane {

/// Which elements a map shows, judged by their three static bytes: what is rejected here is never read from the disk.
///
/// `bytes` are those of IChartElement::writeStaticData, of the kind that each function names; `viewArea` is the map's,
/// in square degrees. What a procedure leads to is shown whatever the view.
struct MapFilter {
    double viewArea = 0.0;
    const MapSwitches& switches;
    bool isTarget = false;

    bool showsAirport(const char* bytes) const;
    /// VORs and NDBs.
    bool showsNavaid(const char* bytes) const;
    bool showsWaypoint(const char* bytes) const;
    bool showsAirway(const char* bytes) const;
    bool showsMark() const;
    /// `altitudeMetres` is the aircraft's.
    bool showsObstruction(const char* bytes, double altitudeMetres) const;
    /// `isIrrelevant`, by the index of AirspaceElement::readStaticAirspaceClass, says which classes the user doesn't
    /// care for; those that the bytes don't tell apart are for the element to say.
    bool showsAirspace(const char* bytes, const bool* isIrrelevant, int airspacesBelowFeet) const;
    bool showsGround(const char* bytes) const;
};

/// Above it airports show as symbols only, below it as their runways.
constexpr double largestSketchArea = 2.5;
constexpr double largestObstructionArea = 15.0;
/// Airports above it have smaller labels.
constexpr double largestFullLabelArea = 15.0;
constexpr double largestWaypointLabelArea = 0.075;
constexpr double largestMarkLabelArea = 0.3;
/// Airspaces above it are simplified.
constexpr double largestDetailedAirspaceArea = 30.0;

/// The top of an obstruction from its static bytes, in metres, to 0.15.
double staticObstructionTop(const char* bytes);
/// The bottom of an airspace, in metres, to 2.3.
double staticAirspaceFloor(const char* bytes);

} // namespace skyvane
