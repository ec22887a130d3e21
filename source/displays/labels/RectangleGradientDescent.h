#pragma once

#include "core/geometry/EngineMath.h"
#include "displays/labels/RectangleQuadTree.h"

#include <deque>
#include <functional>
#include <utility>
#include <vector>

namespace skyvane {

/// Places labels around their symbols so that they hide little of each other.
///
/// A label may sit anywhere around its symbol, so the free value of each is one angle, 0 to the right of the symbol and
/// counter-clockwise on the screen. The solver turns every label by steps of a fixed size towards less overlap, all at
/// once, until no label gains.
///
///     RectangleGradientDescent solver({-3840.0, -2160.0, 3840.0, 2160.0});
///     const auto* label = solver.addRectangle({{0.0, 0.0}, {80.0, 20.0}, 0.0, {16.0, 16.0}, nullptr});
///     solver.optimize(400, 0.0175, 0.01, false);
///     draw(label->second);
///
/// One thread at a time. It doesn't look for the best of all arrangements, only for a better one.
class RectangleGradientDescent {
public:
    using Pair = irr::core::vector2d<double>;
    using Rect = irr::core::rect<double>;

    /// One label. Pixels, y downwards.
    struct Rectangle {
        Pair position; ///< the anchor: the middle of the symbol
        Pair size;
        double angle = 0.0; ///< radians
        Pair anchorSize;
        const Rect* limit = nullptr; ///< an area that the label must stay in; outlives the solver's use of it
    };
    /// A label and the rectangle that it occupies now.
    using Entry = std::pair<Rectangle, Rect>;

    /// The limit is the root of the search tree; labels outside of it count, but slow the search.
    explicit RectangleGradientDescent(const Rect& spaceLimit);

    /// The entry stays where it is until clear().
    const Entry* addRectangle(const Rectangle& rectangle);
    const Entry& getRectangle(unsigned index) const { return entries_[index]; }
    unsigned getRectangleCount() const { return static_cast<unsigned>(entries_.size()); }
    void clear();
    const Rect& getSpaceLimit() const { return spaceLimit_; }

    /// At most that many rounds with steps in radians. True when no label's overlap changed by the threshold, in square
    /// pixels per radian, any more. `aborted`, if given, is asked after each round.
    bool optimize(unsigned maxIterations, double step, double threshold, bool anchorsAreObstacles,
                  const std::function<bool()>& aborted = nullptr);

    /// A descent ends in the nearest hollow. This sends each label that still lies on others, or on the symbols of
    /// others, to the freest place around its own symbol, where that saves at least half of the overlap. True when one
    /// was sent: optimize() again. `aborted` is asked after each label.
    bool freeStuckLabels(const std::function<bool()>& aborted = nullptr);

    /// Where a label lies at an angle: on its orbit around the symbol, moved up to it and into its limit.
    static Rect convertToRect(const Rectangle& rectangle, double angle);

private:
    void fillTree(bool anchorsAreObstacles);
    bool calcGradients(double step, double threshold);
    void move(double step, double threshold);
    bool freeLabel(Entry& entry);

    Rect spaceLimit_;
    std::deque<Entry> entries_;
    std::vector<double> gradients_;
    std::vector<Rect> anchors_;
    RectangleQuadTree tree_;
};

} // namespace skyvane
