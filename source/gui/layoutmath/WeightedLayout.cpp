#include "gui/layoutmath/WeightedLayout.h"

#include "core/geometry/Rectangles.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

WeightedLayout::WeightedLayout(Kind kind, int width, int height, float sumOfWeights)
    : horizontal_(kind.horizontal), length_(std::max(0, kind.horizontal ? width : height)),
      cross_(std::max(0, (kind.horizontal ? height : width) - 1)),
      scale_(kind.scrollable || !(sumOfWeights > 0.0f) ? 1.0f : 1.0f / sumOfWeights) {}

irr::core::rect<int> WeightedLayout::next(float weight, float aspect, bool mustKeepAspect, int scrollOffset) {
    const double share = std::isfinite(weight) ? std::max(0.0f, weight) : 0.0f;
    const int from = scrollOffset + roundHalfAway(position_);
    position_ += share * scale_ * length_;
    const int to = scrollOffset + roundHalfAway(position_);
    const irr::core::rect<int> place =
        horizontal_ ? irr::core::rect<int>(from, 0, to, cross_) : irr::core::rect<int>(0, from, cross_, to);
    return mustKeepAspect ? makeXic(place, aspect) : place;
}

int WeightedLayout::getContentLength() const {
    return roundHalfAway(position_);
}

} // namespace skyvane
