#include "displays/mapmath/elements/ObstructionGroups.h"

#include "chart/elements/ObstructionElement.h"

#include <cmath>

namespace skyvane {

void ObstructionGroups::start(const ChartPosition& origin, double cellLongitude, double cellLatitude) {
    const bool isSame = origin.longitude == origin_.longitude && origin.latitude == origin_.latitude &&
                        cellLongitude == cellLongitude_ && cellLatitude == cellLatitude_;
    if (isSame)
        return;
    clear();
    origin_ = origin;
    cellLongitude_ = cellLongitude;
    cellLatitude_ = cellLatitude;
}

void ObstructionGroups::add(const ObstructionElement& element, int index, const ShapePoint& pixel) {
    const auto cell = [](double degrees, double size) {
        return static_cast<uint32_t>(static_cast<int32_t>(std::floor(degrees / size)));
    };
    const ChartPosition& position = element.position;
    const uint64_t key =
        static_cast<uint64_t>(cell(position.longitude, cellLongitude_)) << 32 | cell(position.latitude, cellLatitude_);
    const GroupedObstruction::ScreenPosition place(static_cast<float>(pixel.X), static_cast<float>(pixel.Y));
    const auto known = groupOfCell_.find(key);
    if (known == groupOfCell_.end()) {
        groupOfCell_.emplace(key, groups_.size());
        groups_.push_back({GroupedObstruction(element, place), index, position, element.hasKnownLighting});
        return;
    }
    Group& group = groups_[known->second];
    group.members.include(element, place);
    group.isLit = group.isLit || element.hasKnownLighting;
}

void ObstructionGroups::clear() {
    groups_.clear();
    groupOfCell_.clear();
}

} // namespace skyvane
