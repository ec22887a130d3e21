#include "displays/instruments/SegmentBackground.h"

#include "displays/drawing/Drawer2D.h"
#include "displays/instruments/DialFlagView.h"

#include <algorithm>

namespace skyvane {

namespace {

constexpr float cornerOfImage = 0.27f; // the part of the image's edge that a corner takes
constexpr int largestCorner = 22;

} // namespace

SegmentBackground::SegmentBackground(Drawer2D* drawer, const std::string& path)
    : drawer_(drawer), texture_(drawer->getDevice()->getVideoDriver(), path) {}

void SegmentBackground::draw(const irr::core::rect<int>& rect, irr::video::SColor color) const {
    const int corner = std::clamp(std::min(rect.getWidth(), rect.getHeight()) * 2 / 5, 1, largestCorner);
    const irr::core::vector2d<int> from = rect.UpperLeftCorner, to = rect.LowerRightCorner;
    const int x[4] = {from.X, from.X + corner, to.X - corner, to.X};
    const int y[4] = {from.Y, from.Y + corner, to.Y - corner, to.Y};
    const float cut[4] = {0.0f, cornerOfImage, 1.0f - cornerOfImage, 1.0f};
    drawer_->setColor(color);
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const Drawer2D::PointF corners[4] = {{cut[column], cut[row]},
                                                 {cut[column + 1], cut[row]},
                                                 {cut[column], cut[row + 1]},
                                                 {cut[column + 1], cut[row + 1]}};
            drawer_->setTextureCoordinates(corners);
            drawer_->Draw(texture_.get(), {x[column], y[row], x[column + 1], y[row + 1]});
        }
    }
    drawer_->setTextureCoordinates(nullptr);
    drawer_->setColor(irr::video::SColor(0xffffffff));
}

int SegmentBackground::rimOf(const irr::core::rect<int>& rect) {
    return std::max(1, std::min(rect.getWidth(), rect.getHeight()) / 22);
}

void SegmentBackground::draw(const irr::core::rect<int>& rect, irr::video::SColor color, DialFlag flag) const {
    if (flag == DialFlag::Good)
        return draw(rect, color);
    const int rim = 1 + rimOf(rect);
    draw(rect, DialFlagView::flagColor(flag));
    draw({rect.UpperLeftCorner.X + rim, rect.UpperLeftCorner.Y + rim, rect.LowerRightCorner.X - rim,
          rect.LowerRightCorner.Y - rim},
         color);
}

} // namespace skyvane
