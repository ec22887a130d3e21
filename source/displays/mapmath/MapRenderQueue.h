#pragma once

#include "displays/mapmath/IdSet.h"
#include "displays/mapmath/MapBox.h"

#include <cstdint>
#include <map>
#include <vector>

namespace skyvane {

class IChartElementSource;

/// What a MapRenderQueue asks of whoever draws.
class IMapQueueUser {
public:
    /// From the three static bytes alone: whether the element may be worth loading.
    virtual bool isPotentiallyRenderable(int index, const uint8_t* staticBytes) = 0;
    /// Loads it. False for an element that is not there; otherwise its place in the order of drawing, low first.
    virtual bool findPriority(int index, int& priority) = 0;
    virtual void draw(int index) = 0;
    /// All elements of that priority are drawn.
    virtual void finishPriority(int priority) = 0;
    /// Seconds. Whatever was drawn has cost its time by then.
    virtual double now() = 0;
    virtual ~IMapQueueUser() = default;
};

/// Draws the chart elements of a box in the order of their priorities, a piece at a time.
///
///     queue.start(charts, box);
///     while (!queue.run(user, 0.03)) ... another frame ...
///
/// First it gathers the elements of the leaves that meet the box, each once, though it may lie in many; then it draws
/// them. Both can stop after any element. Keeps its memory. Main thread only.
class MapRenderQueue {
public:
    /// Null as charts is an empty chart. They stay the same until the queue is done or starts again.
    void start(IChartElementSource* charts, const MapBox& box);
    /// Goes on for that many seconds; true when all is drawn.
    bool run(IMapQueueUser& user, double seconds);
    bool isDone() const { return phase_ == Phase::Done; }
    void abort() { phase_ = Phase::Done; }
    int getElementCount() const { return static_cast<int>(seen_.getSize()); }

private:
    enum class Phase { Push, Draw, Done };

    bool push(IMapQueueUser& user, double end);
    bool pushLeaf(IMapQueueUser& user, int area, double end);
    bool draw(IMapQueueUser& user, double end);

    Phase phase_ = Phase::Done;
    IChartElementSource* charts_ = nullptr;
    std::vector<int> leafs_;
    size_t nextLeaf_ = 0;
    size_t nextInLeaf_ = 0;
    std::map<int, std::vector<int>> queue_;
    std::map<int, std::vector<int>>::iterator drawn_;
    size_t nextInPriority_ = 0;
    IdSet seen_;
};

} // namespace skyvane
