#pragma once

#include "displays/visionmath/Lens.h"

#include <array>

namespace skyvane {

/// A rung of the pitch ladder on the panel.
struct PitchRung {
    Lens::Point centre;
    Lens::Point along; ///< Unit vector to the right along the rung, y down.
    int pitchDegrees;  ///< Below the horizon negative, -90 to 90.
    bool isLong;       ///< Every 10 degrees, with its number; those between are half as long.
};

/// The rungs of the ladder that stand within a distance of the middle of the panel: each where the world has that pitch
/// straight ahead, so that the zero rung lies on the horizon. The ladder goes on over zenith and nadir.
class PitchLadder {
public:
    static constexpr int stepDegrees = 5;

    /// `reachPixels` from the middle of the panel.
    PitchLadder(const ViewPose& pose, const Lens& lens, double reachPixels);

    const PitchRung* begin() const { return rungs_.data(); }
    const PitchRung* end() const { return rungs_.data() + count_; }

private:
    void add(const ViewPose& pose, const Lens& lens, int degrees, double reachPixels);

    ViewPose::Vector ahead_, right_; ///< Level.
    std::array<PitchRung, 40> rungs_;
    size_t count_ = 0;
};

} // namespace skyvane
