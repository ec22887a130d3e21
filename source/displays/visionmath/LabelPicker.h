#pragma once

#include "core/geometry/EngineMath.h"

#include <vector>

namespace skyvane {

/// Chooses the labels of a scene that fit on the glass without touching each other: the most important ones, and of
/// equal ones the nearest. What was shown the last time goes before others of its importance, so that labels don't
/// flicker when two of them cross.
///
/// Allocates nothing once its lists have grown.
class LabelPicker {
public:
    struct Label {
        irr::core::rect<int> place;
        int importance = 0; ///< Larger is shown first.
        double metres = 0.0;
        int id = 0; ///< The same in each frame.
    };

    void clear() { labels_.clear(); }
    void add(const Label& label) { labels_.push_back(label); }
    /// At most `most` of them, in the order in which they are to be drawn: far ones first. Valid until the next call.
    const std::vector<Label>& pick(size_t most, const irr::core::rect<int>& panel);

private:
    bool wasShown(int id) const;

    std::vector<Label> labels_, chosen_;
    std::vector<int> shown_; ///< Sorted.
};

} // namespace skyvane
