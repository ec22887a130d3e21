#include "chart/elements/GroupedObstruction.h"

#include "chart/elements/ObstructionElement.h"

#include <algorithm>

namespace skyvane {

GroupedObstruction::GroupedObstruction(const ObstructionElement& element, const ScreenPosition& position)
    : highestMslFeet_(element.altitudeMslFeet), highestAglFeet_(element.heightAglFeet), position_(position),
      count_(element.isGroup ? 2 : 1) {}

void GroupedObstruction::include(const ObstructionElement& element, const ScreenPosition& position) {
    position_ = (position_ * static_cast<float>(count_) + position) / static_cast<float>(count_ + 1);
    ++count_;
    highestMslFeet_ = std::max(highestMslFeet_, element.altitudeMslFeet);
    highestAglFeet_ = std::max(highestAglFeet_, element.heightAglFeet);
}

} // namespace skyvane
