#include "displays/informationmath/LabelSpace.h"

#include <algorithm>

namespace skyvane {

bool doMeet(const ShapeRect& a, const ShapeRect& b) {
    return a.UpperLeftCorner.X < b.LowerRightCorner.X && b.UpperLeftCorner.X < a.LowerRightCorner.X &&
           a.UpperLeftCorner.Y < b.LowerRightCorner.Y && b.UpperLeftCorner.Y < a.LowerRightCorner.Y;
}

namespace {

bool meetsAny(const ShapeRect& place, const std::vector<ShapeRect>& others) {
    return std::any_of(others.begin(), others.end(), [&place](const ShapeRect& other) { return doMeet(place, other); });
}

double moved(double middle, double size, double low, double high) {
    return size < high - low ? std::clamp(middle, low + 0.5 * size, high - 0.5 * size) : 0.5 * (low + high);
}

} // namespace

void LabelSpace::clear(const ShapeRect& bounds) {
    bounds_ = bounds;
    blocked_.clear();
    avoided_.clear();
}

ShapeRect LabelSpace::within(const ShapePoint& middle, const ShapePoint& size) const {
    const double x = moved(middle.X, size.X, bounds_.UpperLeftCorner.X, bounds_.LowerRightCorner.X);
    const double y = moved(middle.Y, size.Y, bounds_.UpperLeftCorner.Y, bounds_.LowerRightCorner.Y);
    return {x - 0.5 * size.X, y - 0.5 * size.Y, x + 0.5 * size.X, y + 0.5 * size.Y};
}

bool LabelSpace::fits(const ShapeRect& place) const {
    return place.UpperLeftCorner.X >= bounds_.UpperLeftCorner.X - 0.5 &&
           place.UpperLeftCorner.Y >= bounds_.UpperLeftCorner.Y - 0.5 &&
           place.LowerRightCorner.X <= bounds_.LowerRightCorner.X + 0.5 &&
           place.LowerRightCorner.Y <= bounds_.LowerRightCorner.Y + 0.5;
}

bool LabelSpace::isFree(const ShapeRect& place, bool mayHide) const {
    return fits(place) && !meetsAny(place, blocked_) && (mayHide || !meetsAny(place, avoided_));
}

} // namespace skyvane
