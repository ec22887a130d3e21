#include "displays/labels/RectangleGradientDescent.h"

#include <cmath>

namespace skyvane {

namespace {

/// A label that is covered by less than this share of itself isn't stuck.
constexpr double tolerableShare = 0.08;
/// What a new place must save to be worth a jump, and what a farther one must save over a nearer.
constexpr double worthwhileShare = 0.5, fartherShare = 0.04;
constexpr int placesOnEachSide = 12; // half a circle

using Pair = RectangleGradientDescent::Pair;
using Rect = RectangleGradientDescent::Rect;

Rect around(const Pair& centre, const Pair& size) {
    return {centre.X - size.X / 2.0, centre.Y - size.Y / 2.0, centre.X + size.X / 2.0, centre.Y + size.Y / 2.0};
}

/// How far a span has to move to touch another one; 0 when it does.
double gapTo(double start, double end, double otherStart, double otherEnd) {
    if (otherStart > end)
        return otherStart - end;
    return start > otherEnd ? otherEnd - start : 0.0;
}

/// How far a span has to move to lie within another one; the start counts for one that is too long.
double shiftInto(double start, double end, double limitStart, double limitEnd) {
    const double back = end > limitEnd ? limitEnd - end : 0.0;
    return start + back < limitStart ? limitStart - start : back;
}

} // namespace

RectangleGradientDescent::RectangleGradientDescent(const Rect& spaceLimit)
    : spaceLimit_(spaceLimit), tree_(spaceLimit) {}

Rect RectangleGradientDescent::convertToRect(const Rectangle& label, double angle) {
    const double radius = (label.size.getLength() + label.anchorSize.getLength()) / 2.0;
    Rect place = around(label.position + Pair(radius * std::cos(angle), -radius * std::sin(angle)), label.size);
    const Rect symbol = around(label.position, label.anchorSize);
    place += Pair(
        gapTo(place.UpperLeftCorner.X, place.LowerRightCorner.X, symbol.UpperLeftCorner.X, symbol.LowerRightCorner.X),
        gapTo(place.UpperLeftCorner.Y, place.LowerRightCorner.Y, symbol.UpperLeftCorner.Y, symbol.LowerRightCorner.Y));
    if (label.limit)
        place += Pair(shiftInto(place.UpperLeftCorner.X, place.LowerRightCorner.X, label.limit->UpperLeftCorner.X,
                                label.limit->LowerRightCorner.X),
                      shiftInto(place.UpperLeftCorner.Y, place.LowerRightCorner.Y, label.limit->UpperLeftCorner.Y,
                                label.limit->LowerRightCorner.Y));
    return place;
}

const RectangleGradientDescent::Entry* RectangleGradientDescent::addRectangle(const Rectangle& rectangle) {
    entries_.emplace_back(rectangle, convertToRect(rectangle, rectangle.angle));
    return &entries_.back();
}

void RectangleGradientDescent::clear() {
    entries_.clear();
    tree_.clear();
}

bool RectangleGradientDescent::optimize(unsigned maxIterations, double step, double threshold, bool anchorsAreObstacles,
                                        const std::function<bool()>& aborted) {
    for (unsigned round = 0; round < maxIterations; ++round) {
        fillTree(anchorsAreObstacles);
        if (!calcGradients(step, threshold))
            return true;
        move(step, threshold);
        if (aborted && aborted())
            return false;
    }
    return false;
}

void RectangleGradientDescent::fillTree(bool anchorsAreObstacles) {
    tree_.clear();
    for (const Entry& entry : entries_)
        tree_.insert(&entry.second);
    if (!anchorsAreObstacles)
        return;
    anchors_.clear();
    for (const Entry& entry : entries_)
        anchors_.push_back(around(entry.first.position, entry.first.anchorSize));
    for (const Rect& anchor : anchors_)
        tree_.insert(&anchor);
}

/// False when nothing gains by moving.
bool RectangleGradientDescent::calcGradients(double step, double threshold) {
    gradients_.clear();
    bool gains = false;
    for (const Entry& entry : entries_) {
        const Rectangle& label = entry.first;
        const double plus = tree_.calcOverlappingArea(&entry.second, convertToRect(label, label.angle + step / 2.0));
        const double minus = tree_.calcOverlappingArea(&entry.second, convertToRect(label, label.angle - step / 2.0));
        gradients_.push_back((plus - minus) / step);
        gains = gains || !(std::fabs(gradients_.back()) < threshold);
    }
    return gains;
}

void RectangleGradientDescent::move(double step, double threshold) {
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (std::fabs(gradients_[i]) < threshold)
            continue;
        Entry& entry = entries_[i];
        entry.first.angle += gradients_[i] > 0.0 ? -step / 2.0 : step / 2.0;
        entry.second = convertToRect(entry.first, entry.first.angle);
    }
}

bool RectangleGradientDescent::freeStuckLabels(const std::function<bool()>& aborted) {
    bool any = false;
    fillTree(true);
    for (Entry& entry : entries_) {
        if (aborted && aborted())
            break;
        if (!freeLabel(entry))
            continue;
        any = true;
        fillTree(true);
    }
    return any;
}

/// The tree holds labels and symbols; the label's own symbol only touches it.
bool RectangleGradientDescent::freeLabel(Entry& entry) {
    const Rectangle& label = entry.first;
    const auto overlapAt = [&](double angle) {
        return tree_.calcOverlappingArea(&entry.second, convertToRect(label, angle));
    };
    const double area = label.size.X * label.size.Y, now = overlapAt(label.angle);
    if (!(now > tolerableShare * area))
        return false;
    double least = worthwhileShare * now, freest = label.angle;
    for (int place = 1; place <= placesOnEachSide; ++place)
        for (const double side : {1.0, -1.0}) {
            const double angle = label.angle + side * M_PI * place / placesOnEachSide;
            const double overlap = overlapAt(angle);
            if (overlap < least - (freest == label.angle ? 0.0 : fartherShare * area)) {
                least = overlap;
                freest = angle;
            }
        }
    if (freest == label.angle)
        return false;
    entry.first.angle = freest;
    entry.second = convertToRect(entry.first, freest);
    return true;
}

} // namespace skyvane
