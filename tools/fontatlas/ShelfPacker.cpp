#include "fontatlas/ShelfPacker.h"

#include <algorithm>

namespace skyvane {

ShelfPacker::ShelfPacker(int width, int height, int gap)
    : width_(width), height_(height), gap_(gap), x_(gap), y_(gap) {}

std::optional<irr::core::vector2d<int>> ShelfPacker::place(int width, int height) {
    if (x_ + width + gap_ > width_) {
        x_ = gap_;
        y_ += shelfHeight_ + gap_;
        shelfHeight_ = 0;
    }
    if (x_ + width + gap_ > width_ || y_ + height + gap_ > height_)
        return std::nullopt;
    const irr::core::vector2d<int> corner(x_, y_);
    x_ += width + gap_;
    shelfHeight_ = std::max(shelfHeight_, height);
    return corner;
}

} // namespace skyvane
