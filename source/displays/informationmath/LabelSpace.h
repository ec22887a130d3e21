#pragma once

#include "displays/shapes/Strokes.h"

#include <vector>

namespace skyvane {

/// Whether two rectangles have an area in common.
bool doMeet(const ShapeRect& a, const ShapeRect& b);

/// The room of a picture in which labels are placed one after the other, the important ones first: none over another,
/// none over what is blocked, all within the bounds. Keeps its memory.
class LabelSpace {
public:
    void clear(const ShapeRect& bounds);
    void block(const ShapeRect& place) { blocked_.push_back(place); }
    /// Blocked for labels that would rather not lie there; see isFree.
    void avoid(const ShapeRect& place) { avoided_.push_back(place); }

    /// A label of that size around a middle, moved into the bounds.
    ShapeRect within(const ShapePoint& middle, const ShapePoint& size) const;
    bool fits(const ShapeRect& place) const;
    bool isFree(const ShapeRect& place, bool mayHide) const;

private:
    ShapeRect bounds_;
    std::vector<ShapeRect> blocked_, avoided_;
};

} // namespace skyvane
