#pragma once

#include "chart/areas/IArea.h"

namespace skyvane {

/// An area with children. They are equally large and numbered depth first, so that their numbers lie equally far apart:
/// the first one, the distance and the count say them all.
class AreaNode final : public IArea {
public:
    AreaNode(const ChartPosition& nw, const ChartPosition& se, int parentIndex)
        : IArea(Kind::Node, nw, se, parentIndex) {}

    bool isLeaf() const override { return false; }
    /// Appends a child's number. False, and nothing changes, for one out of step with those before.
    bool addChild(int index);

    int getChildCount() const { return count_; }
    /// The number of the i-th child, west to east, and north to south in each column.
    int getChild(int i) const { return first_ + i * distance_; }

private:
    int first_ = 0;
    int distance_ = 0;
    int count_ = 0;
};

inline const AreaNode* IArea::asNode() const {
    return kind_ == Kind::Node ? static_cast<const AreaNode*>(this) : nullptr;
}

} // namespace skyvane
