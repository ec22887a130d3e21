#pragma once

#include "procedures/plan/FlightPlan.h"

#include <optional>
#include <string>

namespace skyvane {

/// How long a plan is, and how long it takes, as its window tells. Main thread only.
struct PlanFigures {
    /// Nautical miles of all procedures; nothing for an empty plan, and while one of them has no path.
    std::optional<double> totalMiles;
    /// Nautical miles of the current procedure; nothing without a path.
    std::optional<double> currentMiles;
};
PlanFigures measurePlan(const FlightPlan::Procedures& procedures, int current);

/// The speed that a pilot has typed, in knots or kilometres per hour; nothing for what is no speed above 0.
std::optional<double> readTypedSpeed(const std::string& text);

/// "Total distance [NM]: 34.5", or in kilometres.
std::string totalDistanceText(const std::optional<double>& miles, bool metric);
/// "kts: 01:02:03": the time at that speed, which is in the unit that the text begins with.
std::string flyingTimeText(const std::optional<double>& miles, const std::optional<double>& speed, bool metric);
/// One line of the list: its number, its length, its name, which may be too long for the list.
std::string planLine(int index, IProcedure& procedure, bool metric);

} // namespace skyvane
