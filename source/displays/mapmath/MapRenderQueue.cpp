#include "displays/mapmath/MapRenderQueue.h"

#include "chart/areas/AreaLeaf.h"
#include "chart/areas/AreaNode.h"
#include "chart/store/IChartElementSource.h"

namespace skyvane {
namespace {

/// A little over the time is no reason to stop.
constexpr double tolerance = 0.001;
/// Looking at the clock costs more than rejecting an element.
constexpr size_t elementsBetweenLooks = 32;
constexpr int rootArea = 0;

void appendFilledLeafs(IChartElementSource& charts, int number, const ChartPosition& nw, const ChartPosition& se,
                       std::vector<int>& leafs) {
    const IArea* area = charts.getArea(number);
    // The root holds every rectangle, but is too wide for the test.
    if (!area || (number != rootArea && !area->Overlap(nw, se)))
        return;
    if (const AreaLeaf* leaf = area->asLeaf()) {
        if (!leaf->getElements().empty())
            leafs.push_back(number);
        return;
    }
    const AreaNode* node = area->asNode();
    for (int i = 0; i < node->getChildCount(); ++i)
        appendFilledLeafs(charts, node->getChild(i), nw, se, leafs);
}

} // namespace

void MapRenderQueue::start(IChartElementSource* charts, const MapBox& box) {
    charts_ = charts;
    seen_.clear();
    for (auto& entry : queue_)
        entry.second.clear();
    leafs_.clear();
    nextLeaf_ = nextInLeaf_ = nextInPriority_ = 0;
    drawn_ = queue_.end();
    phase_ = charts ? Phase::Push : Phase::Done;
    if (!charts)
        return;
    appendFilledLeafs(*charts, rootArea, box.getNW(), box.getSE(), leafs_);
}

bool MapRenderQueue::run(IMapQueueUser& user, double seconds) {
    const double end = user.now() + seconds + tolerance;
    if (phase_ == Phase::Push && push(user, end)) {
        phase_ = Phase::Draw;
        drawn_ = queue_.begin();
    }
    if (phase_ == Phase::Draw && draw(user, end))
        phase_ = Phase::Done;
    return isDone();
}

bool MapRenderQueue::push(IMapQueueUser& user, double end) {
    for (; nextLeaf_ < leafs_.size(); ++nextLeaf_, nextInLeaf_ = 0)
        if (!pushLeaf(user, leafs_[nextLeaf_], end))
            return false;
    return true;
}

bool MapRenderQueue::pushLeaf(IMapQueueUser& user, int number, double end) {
    const IArea* area = charts_->getArea(number);
    const AreaLeaf* leaf = area ? area->asLeaf() : nullptr;
    if (!leaf || !leaf->isSane())
        return true;
    const std::vector<int>& elements = leaf->getElements();
    for (; nextInLeaf_ < elements.size(); ++nextInLeaf_) {
        if (nextInLeaf_ % elementsBetweenLooks == 0 && user.now() > end)
            return false;
        const int index = elements[nextInLeaf_];
        int priority = 0;
        if (user.isPotentiallyRenderable(index, &leaf->getStaticBytes()[AreaLeaf::BytesPerElement * nextInLeaf_]) &&
            seen_.insert(index) && user.findPriority(index, priority))
            queue_[priority].push_back(index);
    }
    return true;
}

bool MapRenderQueue::draw(IMapQueueUser& user, double end) {
    for (; drawn_ != queue_.end(); ++drawn_, nextInPriority_ = 0) {
        const std::vector<int>& elements = drawn_->second;
        for (; nextInPriority_ < elements.size(); ++nextInPriority_) {
            if (user.now() > end)
                return false;
            user.draw(elements[nextInPriority_]);
        }
        if (!elements.empty())
            user.finishPriority(drawn_->first);
    }
    return true;
}

} // namespace skyvane
