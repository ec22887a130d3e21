#include "displays/shapes/PolygonSweep.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr uint32_t none = 0xffffffff;

bool isFinite(const ShapePoint& point) {
    return std::isfinite(point.X) && std::isfinite(point.Y);
}

} // namespace

PolygonSweep::PolygonSweep(const ShapePath& polygon) {
    addEdges(polygon);
    isDone_ = edges_.empty() || hasFailed_;
    if (isDone_)
        return;
    rightOf_.assign(edges_.size(), none);
    sinceOf_.assign(edges_.size(), 0.0);
    trapezoids_.reserve(edges_.size());
    now_ = levels_.front();
}

void PolygonSweep::addEdges(const ShapePath& polygon) {
    hasFailed_ = !std::all_of(polygon.begin(), polygon.end(), isFinite);
    if (hasFailed_ || polygon.size() < 3)
        return;
    edges_.reserve(polygon.size());
    for (size_t i = 0, last = polygon.size() - 1; i < polygon.size(); last = i++) {
        const ShapePoint &a = polygon[last], &b = polygon[i];
        if (a.Y != b.Y) {
            const bool rises = a.Y < b.Y;
            edges_.push_back({rises ? a : b, rises ? b : a, (b.X - a.X) / (b.Y - a.Y)});
        }
    }
    std::sort(edges_.begin(), edges_.end(), [](const Edge& a, const Edge& b) { return a.low.Y < b.low.Y; });
    levels_.reserve(2 * edges_.size());
    for (const Edge& edge : edges_) {
        levels_.push_back(edge.low.Y);
        levels_.push_back(edge.high.Y);
    }
    std::sort(levels_.begin(), levels_.end());
    levels_.erase(std::unique(levels_.begin(), levels_.end()), levels_.end());
}

bool PolygonSweep::advance(uint64_t work) {
    const uint64_t limit = work_ + work;
    while (!isDone_ && work_ < limit)
        sweepSlab();
    return isDone_;
}

/// From now_ to the next vertex, or to the first crossing before it.
void PolygonSweep::sweepSlab() {
    while (level_ < levels_.size() && levels_[level_] <= now_)
        ++level_;
    if (level_ == levels_.size())
        return finish();
    updateActive();
    const double end = cutAtCrossing(levels_[level_]);
    updateOpen();
    now_ = end;
    work_ += active_.size() + 1;
    if (work_ > maximumWork) {
        hasFailed_ = true;
        finish();
    }
}

void PolygonSweep::updateActive() {
    const auto hasEnded = [this](const Active& active) { return edges_[active.edge].high.Y <= now_; };
    active_.erase(std::remove_if(active_.begin(), active_.end(), hasEnded), active_.end());
    const size_t old = active_.size();
    for (; nextEdge_ < edges_.size() && edges_[nextEdge_].low.Y <= now_; ++nextEdge_)
        active_.push_back({static_cast<uint32_t>(nextEdge_), 0.0, 0.0});
    const double end = levels_[level_];
    for (Active& active : active_) {
        active.now = edges_[active.edge].at(now_);
        active.then = edges_[active.edge].at(end);
    }
    // Edges that start, or have just crossed, in one point are told apart by where they go.
    const double tiny = 1e-12 * (1.0 + std::fabs(active_.empty() ? 0.0 : active_.front().now));
    const auto isLeft = [tiny](const Active& a, const Active& b) {
        return std::fabs(a.now - b.now) > tiny ? a.now < b.now : a.then < b.then;
    };
    // What was active is in order but for crossings, so that moving each to its place is next to nothing.
    const auto put = [&](size_t i) {
        const Active moved = active_[i];
        for (; i > 0 && isLeft(moved, active_[i - 1]); --i, ++work_)
            active_[i] = active_[i - 1];
        active_[i] = moved;
    };
    for (size_t i = 1; i < old; ++i)
        put(i);
    if (active_.size() - old > 16) {
        std::sort(active_.begin() + static_cast<std::ptrdiff_t>(old), active_.end(), isLeft);
        std::inplace_merge(active_.begin(), active_.begin() + static_cast<std::ptrdiff_t>(old), active_.end(), isLeft);
        return;
    }
    for (size_t i = std::max<size_t>(old, 1); i < active_.size(); ++i)
        put(i);
}

/// Where two neighbours first change places, else the end. Crossings too close to tell from now don't count.
double PolygonSweep::cutAtCrossing(double end) const {
    const double least = now_ + 1e-9 * (end - now_);
    double first = end;
    for (size_t i = 0; i + 1 < active_.size(); ++i) {
        const Active &left = active_[i], &right = active_[i + 1];
        const double gapNow = right.now - left.now, gapThen = right.then - left.then;
        if (gapThen >= 0.0 || gapNow <= 0.0)
            continue;
        const double crossing = now_ + (end - now_) * gapNow / (gapNow - gapThen);
        if (crossing > least)
            first = std::min(first, crossing);
    }
    return first;
}

void PolygonSweep::updateOpen() {
    next_.clear();
    for (size_t i = 0; i + 1 < active_.size(); i += 2)
        next_.push_back({active_[i].edge, active_[i + 1].edge, now_});
    for (const Open& open : open_) {
        rightOf_[open.left] = open.right;
        sinceOf_[open.left] = open.since;
    }
    for (Open& open : next_) {
        if (rightOf_[open.left] != open.right)
            continue;
        open.since = sinceOf_[open.left];
        rightOf_[open.left] = none; // goes on
    }
    for (const Open& open : open_) {
        if (rightOf_[open.left] != none)
            close(open, now_);
        rightOf_[open.left] = none;
    }
    open_.swap(next_);
}

void PolygonSweep::close(const Open& open, double y) {
    if (!(y > open.since))
        return;
    const Edge &left = edges_[open.left], &right = edges_[open.right];
    trapezoids_.push_back({static_cast<float>(open.since), static_cast<float>(y),
                           static_cast<float>(left.at(open.since)), static_cast<float>(right.at(open.since)),
                           static_cast<float>(left.at(y)), static_cast<float>(right.at(y))});
}

void PolygonSweep::finish() {
    for (const Open& open : open_)
        close(open, now_);
    std::vector<Open>().swap(open_);
    std::vector<Edge>().swap(edges_);
    std::vector<double>().swap(levels_);
    std::vector<Active>().swap(active_);
    std::vector<Open>().swap(next_);
    std::vector<uint32_t>().swap(rightOf_);
    std::vector<double>().swap(sinceOf_);
    isDone_ = true;
}

} // namespace skyvane
