#pragma once

#include "displays/gauges/DialFlag.h"

namespace skyvane {

/// How far a scene may be believed: what each of its sources says, and what the glass shows for it.
///
/// A doubtful source turns the scene yellow. Without attitude there is no pilot's view; without a position or an
/// altitude the ground can't be shown where it is, so none is.
struct SceneTrust {
    DialFlag attitude = DialFlag::Failed;
    DialFlag heading = DialFlag::Failed;
    DialFlag position = DialFlag::Failed;
    DialFlag altitude = DialFlag::Failed;

    bool isAnyDoubtful() const { return isAny(DialFlag::Doubtful); }
    bool isAnyFailed() const { return isAny(DialFlag::Failed); }
    bool isAttitudeShown() const { return isValueShown(attitude); }
    /// The aircraft's place in the world.
    bool isPlaceShown() const { return isValueShown(position) && isValueShown(altitude); }

private:
    bool isAny(DialFlag flag) const {
        return attitude == flag || heading == flag || position == flag || altitude == flag;
    }
};

} // namespace skyvane
