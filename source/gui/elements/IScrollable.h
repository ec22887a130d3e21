#pragma once

namespace skyvane {

class ScrollBar;

/// Something that a ScrollBar moves. Whoever may end before the bar unlinks it.
class IScrollable {
public:
    virtual ~IScrollable() = default;
    /// 0 is the start of the content, 1 its end.
    virtual void setScrollShare(float share) = 0;
    /// The bar that shows where the content stands, or null. Called by the bar.
    virtual void setScrollBar(ScrollBar* bar) = 0;
};

} // namespace skyvane
