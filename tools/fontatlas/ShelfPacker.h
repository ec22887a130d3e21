#pragma once

#include "core/geometry/EngineMath.h"
#include <optional>

namespace skyvane {

/// Places rectangles on a page in shelves, from the upper left corner. Give the highest first, so that little is lost.
class ShelfPacker {
public:
    /// `gap` pixels stay free between rectangles and at the page's edges.
    ShelfPacker(int width, int height, int gap);

    /// Upper left corner, nothing when the page is full.
    std::optional<irr::core::vector2d<int>> place(int width, int height);

private:
    int width_;
    int height_;
    int gap_;
    int x_;
    int y_;
    int shelfHeight_ = 0;
};

} // namespace skyvane
