#include "gui/keys/KeepVisible.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<int>;

/// The upper edge of what stands below or over the rectangle, at the highest place in its columns; its lower edge when
/// nothing reaches it.
int clearBottom(const Rect& rect, const std::vector<Rect>& covers) {
    int bottom = rect.LowerRightCorner.Y;
    for (const Rect& cover : covers) {
        const bool beside =
            cover.LowerRightCorner.X <= rect.UpperLeftCorner.X || cover.UpperLeftCorner.X >= rect.LowerRightCorner.X;
        if (!beside)
            bottom = std::min(bottom, cover.UpperLeftCorner.Y);
    }
    return bottom;
}

} // namespace

Clearance clearOf(const std::vector<Rect>& covers, const Rect& editBox, const Rect& window, int margin) {
    const int whole = window.LowerRightCorner.Y - clearBottom(window, covers);
    if (whole <= window.UpperLeftCorner.Y)
        return {whole, 0};
    Rect withMargin = editBox;
    withMargin.LowerRightCorner.Y += margin;
    const int needed = withMargin.LowerRightCorner.Y - clearBottom(withMargin, covers);
    if (needed <= 0)
        return {};
    const int lift = std::min(needed, std::max(0, editBox.UpperLeftCorner.Y - margin));
    return {lift, std::clamp(needed - lift, 0, std::max(0, editBox.getHeight() / 2))};
}

} // namespace skyvane
