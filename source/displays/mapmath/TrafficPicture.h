#pragma once

#include "sensors/records/TrafficElement.h"

#include <optional>
#include <string>

namespace skyvane {

/// What a map shows of one target.
struct TrafficPicture {
    std::optional<double> differenceMetres; ///< Above the aircraft; nothing when nobody knows.
    std::string differenceText;             ///< "+12" in tens of feet or metres; "---" when nobody knows.
    std::optional<double> trackDegrees;     ///< Nothing for a target that doesn't tell.
    int trend = 0;                          ///< 1 climbing, -1 sinking by 500 feet a minute or more.
    std::string name;                       ///< Printable characters alone.
};

struct TrafficSituation {
    double ownAltitudeMetres = 0.0; ///< As indicated.
    double seaLevelPressure = 1013.25;
    int filterFeet = 0; ///< Targets as far above or below are left out; 0 or less shows all.
    bool metric = false;
};

/// Nothing for a target that isn't to be shown: filtered, or nowhere on the earth.
std::optional<TrafficPicture> describeTraffic(const TrafficElement& target, const TrafficSituation& situation);

} // namespace skyvane
