#include "displays/map/elements/GroundFills.h"

#include "core/time/Time.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr size_t mostFills = 6000, mostTrapezoids = 2000000;
/// Edges looked at in one go: about a millisecond.
constexpr uint64_t stepWork = 20000;
constexpr double frameSeconds = 0.003;

} // namespace

GroundFills::GroundFills() : fills_(mostFills) {}

const GroundFill* GroundFills::get(int index, int detailStep, const std::vector<ChartPosition>& vertices) {
    const Key key = static_cast<Key>(static_cast<uint32_t>(index)) << 8 | static_cast<Key>(detailStep);
    std::unique_ptr<GroundFill>* known = fills_.find(key);
    // The index may stand for another element since the charts were changed.
    if (known && (*known)->isOf(vertices))
        return (*known)->isDone() ? known->get() : nullptr;
    if (size_ > mostTrapezoids) {
        fills_.clear();
        waiting_.clear();
        size_ = 0;
    }
    auto fill = std::make_unique<GroundFill>(vertices, groundDetailDegrees(detailStep));
    const bool isDone = fill->advance(stepWork);
    known = fills_.insert(key, std::move(fill));
    if (isDone)
        noteDone(**known);
    else if (std::find(waiting_.begin(), waiting_.end(), key) == waiting_.end())
        waiting_.push_back(key);
    return isDone ? known->get() : nullptr;
}

bool GroundFills::goOn() {
    const double start = Secs();
    bool hasMade = false;
    while (!waiting_.empty() && Secs() - start < frameSeconds) {
        std::unique_ptr<GroundFill>* fill = fills_.find(waiting_.back());
        if (fill && !(*fill)->advance(stepWork))
            continue;
        if (fill) {
            noteDone(**fill);
            hasMade = true;
        }
        waiting_.pop_back();
    }
    return hasMade;
}

void GroundFills::noteDone(const GroundFill& fill) {
    size_ += fill.getSize();
}

} // namespace skyvane
