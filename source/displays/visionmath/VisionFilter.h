#pragma once

#include "displays/visionmath/VisionSettings.h"

namespace skyvane {

/// Which elements a scene shows, judged by their three static bytes as MapFilter does for maps. What a procedure leads
/// to is always shown.
struct VisionFilter {
    const VisionSwitches& switches;
    bool isTarget = false;

    bool showsAirport(const char* bytes) const;
    /// VORs and NDBs.
    bool showsNavaid(const char* bytes) const;
    /// Of airways by their levels, others by the switch for standalone fixes.
    bool showsWaypoint(const char* bytes) const;
    /// `altitudeMetres` is the aircraft's.
    bool showsObstruction(const char* bytes, double altitudeMetres) const;
};

} // namespace skyvane
