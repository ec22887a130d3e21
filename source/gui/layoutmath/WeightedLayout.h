#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// Lays children out one after the other along an axis, each as long as its weight says.
///
///     WeightedLayout layout({horizontal, scrollable}, width, height, sumOfWeights);
///     for (child : children)
///         child->setRelativePosition(layout.next(weight, aspect, mustKeepAspect, scrollOffset));
///
/// Without scrolling the children share the whole length. With scrolling a weight of 1 is as long as the view, so that
/// the content may be longer. Pixels relative to the parent; across the axis a child takes all but one pixel.
class WeightedLayout {
public:
    struct Kind {
        bool horizontal;
        bool scrollable;
    };

    WeightedLayout(Kind kind, int width, int height, float sumOfWeights);

    /// The rectangle of the next child: with `mustKeepAspect` the largest of that width to height, centred in its
    /// place.
    irr::core::rect<int> next(float weight, float aspect, bool mustKeepAspect, int scrollOffset);
    /// Of the children so far, in pixels along the axis.
    int getContentLength() const;
    int getViewLength() const { return length_; }

private:
    bool horizontal_;
    int length_;
    int cross_;
    float scale_;
    double position_ = 0.0;
};

} // namespace skyvane
