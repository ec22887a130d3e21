#pragma once

namespace skyvane {

/// The sizes that everything touch-sized derives from, fixed at start.
struct ScreenMetrics {
    ScreenMetrics(unsigned screenWidth, unsigned screenHeight);

    unsigned width;
    unsigned height;
    int pixelCount;
    int buttonWidth;  ///< 0.12649 of the square root of the pixel count, rounded
    int buttonHeight; ///< 0.049410625 of it
    int largeUnit;    ///< 0.37947 of it: menus and dialogs
    bool portrait;    ///< height greater than width
};

} // namespace skyvane
