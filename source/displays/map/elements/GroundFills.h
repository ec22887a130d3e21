#pragma once

#include "chart/store/LRUCache.h"
#include "displays/mapmath/elements/GroundFill.h"

#include <memory>
#include <vector>

namespace skyvane {

/// The insides of polygons, kept by element and detail. Large ones are made over several frames. Main thread only.
class GroundFills {
public:
    GroundFills();

    /// The fill of an element at a step of detail; null while it is still being made.
    const GroundFill* get(int index, int detailStep, const std::vector<ChartPosition>& vertices);
    /// For some milliseconds; true when another one has been made.
    bool goOn();

private:
    void noteDone(const GroundFill& fill);

    using Key = uint64_t;
    LRUCache<Key, std::unique_ptr<GroundFill>> fills_;
    std::vector<Key> waiting_;
    size_t size_ = 0; ///< About, of all trapezoids.
};

} // namespace skyvane
