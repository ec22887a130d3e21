#include "displays/gauges/DialFrame.h"

namespace skyvane {

irr::core::rect<int> boxInSquare(const irr::core::rect<int>& square, double centreX, double centreY, double width,
                                 double height) {
    const int edge = square.getWidth();
    const int boxWidth = static_cast<int>(width * edge + 0.5);
    const int boxHeight = static_cast<int>(height * edge + 0.5);
    const int left = square.UpperLeftCorner.X + static_cast<int>(centreX * edge) - boxWidth / 2;
    const int top = square.UpperLeftCorner.Y + static_cast<int>(centreY * edge) - boxHeight / 2;
    return irr::core::rect<int>(left, top, left + boxWidth, top + boxHeight);
}

} // namespace skyvane
