#include "gui/layoutmath/NineParts.h"

#include "core/text/Numbers.h"

#include <algorithm>

namespace skyvane {
namespace {

std::array<int, 4> cutSide(int from, int to, int corner) {
    const int cut = std::max(0, std::min(corner, (to - from) / 2));
    return {from, from + cut, to - cut, to};
}

} // namespace

int cornerSize(const irr::core::rect<int>& rect, int screenShortSide, float cornerOfShort, float cornerOfScreen) {
    const int shortSide = std::min(rect.getWidth(), rect.getHeight());
    return std::max(0, std::min(roundHalfAway(static_cast<double>(screenShortSide) * cornerOfScreen),
                                roundHalfAway(static_cast<double>(shortSide) * cornerOfShort)));
}

NineParts nineParts(const irr::core::rect<int>& rect, int corner) {
    return {cutSide(rect.UpperLeftCorner.X, rect.LowerRightCorner.X, corner),
            cutSide(rect.UpperLeftCorner.Y, rect.LowerRightCorner.Y, corner)};
}

} // namespace skyvane
