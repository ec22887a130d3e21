#pragma once

#include "sensors/gdl90/GDL90Flavor.h"

#include <limits>

namespace skyvane {

class OwnShipGDL90Message;
struct GDL90CurrentMessages;

/// Where the aircraft points, out of everything that a receiver says about it.
///
/// Track, true and magnetic heading each keep their last value. A live one, which came with the messages of this run,
/// is preferred; among those track comes before true and that before magnetic heading.
class GDL90Headings {
public:
    /// The numbers are those of TrafficGDL90Message::TrackKind.
    enum Kind { None = 0, Track = 1, Magnetic = 2, True = 3 };

    struct Choice {
        double degrees = 0.0;
        Kind kind = None;
        bool isLive = false;
    };
    /// Degrees, NaN before the first one.
    struct Store {
        float degrees = std::numeric_limits<float>::quiet_NaN();
        bool isLive = false;
        void set(double newDegrees);
        /// NaN when it isn't live.
        float live() const;
    };

    void take(const GDL90CurrentMessages& messages, GDL90Flavor flavor);
    Choice choose() const;

    const Store& track() const { return track_; }
    const Store& trueHeading() const { return true_; }
    const Store& magnetic() const { return magnetic_; }

private:
    void takeOwnShip(const OwnShipGDL90Message& ownShip, const GDL90CurrentMessages& messages);

    Store track_;
    Store true_;
    Store magnetic_;
};

} // namespace skyvane
