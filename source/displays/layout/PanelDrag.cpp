#include "displays/layout/PanelDrag.h"

#include "core/time/Time.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double lowGuide = 0.25, highGuide = 0.75;
constexpr double handleStart = 0.45, handleEnd = 0.55;
constexpr double smallestExtent = 0.02; // of the area: what a finger can still find
constexpr double tapReach = 0.01;       // of the area
constexpr unsigned sampleMilliseconds = 32;
constexpr unsigned doubleClickMilliseconds = 500;
constexpr unsigned tapMilliseconds = 300;

bool isInside(const PanelFractions& panel, PanelPoint at) {
    return at.x >= panel.left && at.x <= panel.right && at.y >= panel.top && at.y <= panel.bottom;
}

/// The extent that two edges may shrink to: that of a panel which is smaller already.
double leastExtent(double low, double high) {
    return std::min(smallestExtent, std::max(0.0, high - low));
}

/// One axis of a panel: which of its edges follow the pointer.
struct Axis {
    double low;
    double high;

    void moveLow(double by) { low = std::clamp(low + by, std::min(low, 0.0), high - leastExtent(low, high)); }
    void moveHigh(double by) { high = std::clamp(high + by, low + leastExtent(low, high), std::max(high, 1.0)); }
    void moveBoth(double by) {
        const double least = std::min(0.0, -low), most = std::max(0.0, 1.0 - high);
        const double limited = std::clamp(by, least, most);
        low += limited;
        high += limited;
    }
    void moveEdgeAt(double pressedAt, double by) {
        const double share = (pressedAt - low) / std::max(high - low, 1e-9);
        if (share < lowGuide)
            moveLow(by);
        else if (share > highGuide)
            moveHigh(by);
    }
};

} // namespace

PanelFractions handleOf(const PanelFractions& panel) {
    const double width = panel.right - panel.left, height = panel.bottom - panel.top;
    return {panel.left + handleStart * width, panel.top + handleStart * height, panel.left + handleEnd * width,
            panel.top + handleEnd * height};
}

PanelGrip gripOf(const PanelFractions& panel, PanelPoint at) {
    if (!isInside(panel, at))
        return PanelGrip::None;
    if (isInside(handleOf(panel), at))
        return PanelGrip::Handle;
    const auto between = [](double low, double high, double value) {
        const double extent = high - low;
        return value >= low + lowGuide * extent && value <= low + highGuide * extent;
    };
    const bool middle = between(panel.left, panel.right, at.x) && between(panel.top, panel.bottom, at.y);
    return middle ? PanelGrip::Whole : PanelGrip::Edges;
}

PanelFractions squareOf(const PanelFractions& panel, const irr::core::dimension2d<int>& area) {
    const double areaWidth = std::max(1, area.Width), areaHeight = std::max(1, area.Height);
    const double edge = std::min((panel.right - panel.left) * areaWidth, (panel.bottom - panel.top) * areaHeight);
    const double x = 0.5 * (panel.left + panel.right), y = 0.5 * (panel.top + panel.bottom);
    const double halfWidth = 0.5 * edge / areaWidth, halfHeight = 0.5 * edge / areaHeight;
    return {x - halfWidth, y - halfHeight, x + halfWidth, y + halfHeight};
}

bool PanelDrag::isNear(PanelPoint a, PanelPoint b) const {
    return std::fabs(a.x - b.x) <= tapReach && std::fabs(a.y - b.y) <= tapReach;
}

bool PanelDrag::press(const PanelFractions& panel, PanelPoint at, unsigned nowMilliseconds) {
    const bool isDouble = handlePressed_ && isNear(at, pressedAt_) &&
                          TimeDiff(nowMilliseconds, pressedMilliseconds_) <= doubleClickMilliseconds;
    grip_ = gripOf(panel, at);
    start_ = panel_ = panel;
    pressedAt_ = at;
    pressedMilliseconds_ = sampledMilliseconds_ = nowMilliseconds;
    moved_ = false;
    handlePressed_ = grip_ == PanelGrip::Handle && !isDouble;
    filled_ = isDouble; // wherever the panel is, since the first click has made it square
    if (filled_) {
        panel_ = {0.0, 0.0, 1.0, 1.0};
        grip_ = PanelGrip::Handle;
    }
    return isActive();
}

bool PanelDrag::move(PanelPoint at, unsigned nowMilliseconds) {
    if (!isActive() || grip_ == PanelGrip::Handle ||
        TimeDiff(nowMilliseconds, sampledMilliseconds_) < sampleMilliseconds)
        return false;
    sampledMilliseconds_ = nowMilliseconds;
    follow(at);
    return true;
}

void PanelDrag::follow(PanelPoint at) {
    moved_ = moved_ || !isNear(at, pressedAt_);
    const double x = at.x - pressedAt_.x, y = at.y - pressedAt_.y;
    Axis across{start_.left, start_.right}, down{start_.top, start_.bottom};
    if (grip_ == PanelGrip::Whole) {
        across.moveBoth(x);
        down.moveBoth(y);
    } else {
        across.moveEdgeAt(pressedAt_.x, x);
        down.moveEdgeAt(pressedAt_.y, y);
    }
    panel_ = {across.low, down.low, across.high, down.high};
}

PanelDrag::Result PanelDrag::release(PanelPoint at, unsigned nowMilliseconds) {
    const PanelGrip grip = grip_;
    grip_ = PanelGrip::None;
    if (grip == PanelGrip::None)
        return Result::Nothing;
    if (grip == PanelGrip::Handle) {
        if (!filled_ && isInside(handleOf(start_), at))
            panel_ = squareOf(start_, area_);
        return Result::Changed;
    }
    grip_ = grip;
    follow(at);
    grip_ = PanelGrip::None;
    if (moved_ || TimeDiff(nowMilliseconds, pressedMilliseconds_) > tapMilliseconds)
        return Result::Changed;
    panel_ = start_;
    return Result::Tapped;
}

} // namespace skyvane
