#pragma once

#include "flightfeed/flight/LocalEarth.h"

#include <cstddef>
#include <vector>

namespace skyvane {

class FlightPlan;

/// All that is left of a flight plan as one line through the air, and how far an aircraft is on it. Places on it are
/// metres from where it begins.
class PlanPath {
public:
    PlanPath() = default;
    /// From the plan's current procedure on.
    explicit PlanPath(FlightPlan& plan);

    bool isEmpty() const { return nodes_.size() < 2; }
    double along() const { return along_; }
    double metresLeft() const { return isEmpty() ? 0.0 : nodes_.back().along - along_; }
    /// To the place nearest to the aircraft, at most so far before or behind the former one.
    void moveTo(const GroundPoint& here, double reachMetres);

    // Of a path that isn't empty; beyond its ends those of the ends.
    double altitudeAt(double along) const;
    double slopeAt(double along) const; ///< climb over length
    GroundPoint pointAt(double along) const;

private:
    struct Node {
        GroundPoint point;
        double altitude;
        double along;
    };
    void add(const GroundPoint& point, double altitude);
    size_t after(double along) const;

    std::vector<Node> nodes_;
    double along_ = 0.0;
};

} // namespace skyvane
