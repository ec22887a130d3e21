#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/geometry/EngineMath.h"

#include <optional>

namespace skyvane {

/// The velocity over ground from successive positions, for where the path of flight leads: x metres per second east,
/// y north, smoothed over about a second. Jumps of the position and silences begin anew.
class VelocityEstimator {
public:
    using Velocity = irr::core::vector2d<double>;

    /// Call every frame; a place that is the same as before is no news. Time in seconds.
    void update(const ChartPosition& position, double time);
    /// Nothing while it isn't known, and below 15 m/s, where a direction means little.
    std::optional<Velocity> get() const;

private:
    void restart(const ChartPosition& position, double time);

    bool started_ = false;
    ChartPosition position_;
    double time_ = 0.0;  ///< Of that position.
    double known_ = 0.0; ///< Seconds behind the velocity.
    Velocity velocity_;
};

} // namespace skyvane
