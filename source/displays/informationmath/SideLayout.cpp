#include "displays/informationmath/SideLayout.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr int staysBelowShare = 6; ///< Of the panel's height.
/// Of the usual width, by the length of their labels.
constexpr double widths[SideButton::Count] = {1.0, 0.5, 0.8, 0.5, 0.5, 0.62};
constexpr double leastText = 0.0125, mostText = 0.0165, textShare = 0.03;

} // namespace

SideButtonPlaces placeSideButtons(const irr::core::rect<int>& panel, int buttonWidth, int buttonHeight) {
    SideButtonPlaces places;
    const int gap = std::max(2, buttonHeight / 8);
    double all = 0.0;
    for (const double width : widths)
        all += width * buttonWidth;
    const int room = panel.getWidth() - (SideButton::Count + 1) * gap;
    const double shrink = std::clamp(room / all, 0.0, 1.0);
    const int height = std::clamp(panel.getHeight() / 2 - 2 * gap, 0, buttonHeight);
    int right = panel.LowerRightCorner.X - gap;
    const int top = panel.UpperLeftCorner.Y + gap;
    for (int i = SideButton::Count - 1; i >= 0; --i) {
        const int width = static_cast<int>(widths[i] * buttonWidth * shrink);
        places.buttons[static_cast<size_t>(i)] = {right - width, top, right, top + height};
        right -= width + gap;
    }
    const irr::core::rect<int>& first = places.buttons[0];
    places.alone = first;
    places.alone += irr::core::vector2d<int>(panel.LowerRightCorner.X - gap - first.LowerRightCorner.X, 0);
    places.mayStay = panel.getHeight() >= staysBelowShare * buttonHeight;
    return places;
}

double sideTextHeight(const irr::core::rect<int>& panel, double screenUnit) {
    return std::clamp(textShare * panel.getHeight(), leastText * screenUnit, mostText * screenUnit);
}

} // namespace skyvane
