#pragma once

#include "core/geometry/EngineMath.h"

#include <cstdint>

namespace skyvane {

class ObstructionElement;

/// Obstructions that a display shows as one, because they fall close together.
class GroupedObstruction {
public:
    using ScreenPosition = irr::core::vector2d<float>;

    /// A group counts for two from the start.
    GroupedObstruction(const ObstructionElement& element, const ScreenPosition& position);
    /// Adds one; the position becomes the mean of all members.
    void include(const ObstructionElement& element, const ScreenPosition& position);

    int32_t getHighestMslFeet() const { return highestMslFeet_; }
    int32_t getHighestAglFeet() const { return highestAglFeet_; }
    const ScreenPosition& getPosition() const { return position_; }
    int getCount() const { return count_; }

private:
    int32_t highestMslFeet_;
    int32_t highestAglFeet_;
    ScreenPosition position_;
    int count_;
};

} // namespace skyvane
