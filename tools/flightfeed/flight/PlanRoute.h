#pragma once

#include "flightfeed/flight/FlightState.h"
#include "flightfeed/flight/PlanPath.h"

#include <memory>
#include <string>

namespace skyvane {

/// A saved flight plan as a way through the air: the paths of its procedures, one after the other, made anew whenever
/// the plan goes on to the next one, as the program does while it follows the same flight.
///
///     auto route = PlanRoute::open("fpl.ini", "ChartData", error);
///     route->begin(state);
///     PlanRoute::Aim aim = route->follow(state);   // each step
class PlanRoute {
public:
    /// What a pilot on the path does next.
    struct Aim {
        double turnRadiansPerSecond = 0.0; ///< right positive
        double altitudeMetres = 0.0;       ///< of the path, here
        double climbMetresPerSecond = 0.0; ///< of the path, where the aircraft is in a moment
        double groundSpeedKnots = 0.0;     ///< of the procedure
        double metresLeft = 0.0;           ///< to the end of the plan
    };

    /// The document's first plan, over the chart sets of a folder. Null, with the words in `error`, when there is none
    /// or a procedure of it can't be flown.
    static std::unique_ptr<PlanRoute> open(const std::string& planFile, const std::string& chartFolder,
                                           std::string& error);
    ~PlanRoute();

    /// From the first procedure on, from there. The heading counts, as it does for the program.
    void begin(const FlightState& state);
    /// The path may be far away here: whoever comes from elsewhere meets it where it is nearest.
    void join(const FlightState& state);
    Aim follow(const FlightState& state);

private:
    struct Plan;

    explicit PlanRoute(std::unique_ptr<Plan> plan);
    void layPath(const FlightState& state);

    std::unique_ptr<Plan> plan_;
    PlanPath path_;
};

} // namespace skyvane
