#include "terrain/paging/ProfileAirspaces.h"

#include "chart/areas/AreaLeaf.h"
#include "chart/elements/AirspaceElement.h"
#include "chart/geodesy/Angles.h"
#include "chart/store/IChartElementSource.h"
#include "core/time/Time.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace skyvane {
namespace {

/// Positions between two looks at the clock.
constexpr size_t SliceOfPositions = 16;
/// Of the first static byte.
constexpr uint8_t TypeMask = 0x3f;

void addAirspaces(const AreaLeaf& leaf, std::set<int>& ids) {
    const std::vector<uint8_t>& bytes = leaf.getStaticBytes();
    for (size_t i = 0; i < leaf.getElements().size(); ++i) {
        const size_t at = i * AreaLeaf::BytesPerElement;
        // Bytes that aren't there say nothing: the element itself will.
        if (at >= bytes.size() || (bytes[at] & TypeMask) == IChartElement::AIRSPACE)
            ids.insert(leaf.getElements()[i]);
    }
}

} // namespace

void ProfileAirspaces::prepare(const std::vector<ChartPosition>& positions, const std::map<int, bool>& leafs,
                               IChartElementSource& chart) {
    chart_ = &chart;
    positions_ = positions;
    stretches_.clear();
    next_ = 0;
    isOpen_ = false;
    std::set<int> ids;
    for (const auto& [index, found] : leafs)
        if (const AreaLeaf* leaf = found ? chart_->getArea(index)->asLeaf() : nullptr)
            addAirspaces(*leaf, ids);
    candidates_.assign(ids.begin(), ids.end());
}

bool ProfileAirspaces::run(double seconds) {
    const double end = Secs() + seconds;
    while (next_ < candidates_.size()) {
        if (!isOpen_ && !open(candidates_[next_])) {
            ++next_;
            continue;
        }
        const size_t stop = std::min(position_ + SliceOfPositions, positions_.size());
        for (; position_ < stop; ++position_)
            markFrom(position_);
        if (position_ == positions_.size())
            close();
        if (Secs() >= end)
            break;
    }
    return next_ == candidates_.size();
}

bool ProfileAirspaces::open(int element) {
    const IChartElement* found = chart_->getChartElement(element);
    const bool isAirspace = found && found->getType() == IChartElement::AIRSPACE;
    const auto* airspace = isAirspace ? static_cast<const AirspaceElement*>(found) : nullptr;
    if (!airspace || airspace->vertices.size() < 3 || airspace->airspaceClass == AirspaceElement::TrafficPatternClass)
        return false;
    origin_ = airspace->vertices.front();
    least_ = most_ = {0.0, 0.0};
    outline_.clear();
    for (const ChartPosition& vertex : airspace->vertices) {
        const Place place{Angle180(vertex.longitude - origin_.longitude), vertex.latitude - origin_.latitude};
        outline_.push_back(place);
        least_ = {std::min(least_.x, place.x), std::min(least_.y, place.y)};
        most_ = {std::max(most_.x, place.x), std::max(most_.y, place.y)};
    }
    isTouched_.assign(positions_.size(), 0);
    position_ = 0;
    isOpen_ = true;
    return true;
}

ProfileAirspaces::Place ProfileAirspaces::placeOf(size_t position) const {
    const ChartPosition& place = positions_[position];
    return {Angle180(place.longitude - origin_.longitude), place.latitude - origin_.latitude};
}

bool ProfileAirspaces::isInside(const Place& place) const {
    bool inside = false;
    for (size_t i = 0, last = outline_.size() - 1; i < outline_.size(); last = i++) {
        const Place &a = outline_[i], &b = outline_[last];
        if ((a.y > place.y) != (b.y > place.y) && place.x < (b.x - a.x) * (place.y - a.y) / (b.y - a.y) + a.x)
            inside = !inside;
    }
    return inside;
}

/// Whether the way between two places leads over an edge.
bool ProfileAirspaces::isCrossed(const Place& from, const Place& to) const {
    const auto side = [](const Place& a, const Place& b, const Place& p) {
        return (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
    };
    for (size_t i = 0, last = outline_.size() - 1; i < outline_.size(); last = i++) {
        const Place &a = outline_[last], &b = outline_[i];
        if (side(from, to, a) * side(from, to, b) <= 0.0 && side(a, b, from) * side(a, b, to) < 0.0)
            return true;
    }
    return false;
}

/// Marks a position that lies inside, and both ends of a step that crosses the edge: no corner that the way cuts
/// between two positions is missed.
void ProfileAirspaces::markFrom(size_t position) {
    const Place here = placeOf(position);
    const bool isLast = position + 1 == positions_.size();
    const Place next = isLast ? here : placeOf(position + 1);
    if (std::max(here.x, next.x) < least_.x || std::min(here.x, next.x) > most_.x ||
        std::max(here.y, next.y) < least_.y || std::min(here.y, next.y) > most_.y)
        return;
    if (isInside(here))
        isTouched_[position] = 1;
    if (!isLast && isCrossed(here, next))
        isTouched_[position] = isTouched_[position + 1] = 1;
}

void ProfileAirspaces::close() {
    for (size_t i = 0; i < isTouched_.size(); ++i) {
        if (!isTouched_[i])
            continue;
        const size_t first = i;
        while (i + 1 < isTouched_.size() && isTouched_[i + 1])
            ++i;
        stretches_.push_back({candidates_[next_], first, i});
    }
    isOpen_ = false;
    ++next_;
}

void ProfileAirspaces::finish() {
    std::sort(stretches_.begin(), stretches_.end(), [](const Stretch& a, const Stretch& b) {
        return std::tie(a.first, a.element, a.last) < std::tie(b.first, b.element, b.last);
    });
    std::vector<Stretch> found = std::move(stretches_);
    *this = ProfileAirspaces();
    stretches_ = std::move(found);
}

} // namespace skyvane
