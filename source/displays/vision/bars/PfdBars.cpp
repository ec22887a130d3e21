#include "displays/vision/bars/PfdBars.h"

#include "displays/visionmath/PfdReadings.h"

namespace skyvane {

PfdBars::PfdBars(Context* context, const VisionSettings& settings) : context_(context), settings_(settings) {}
PfdBars::~PfdBars() = default;

irr::core::rect<int> PfdBars::getFreeRect(const irr::core::rect<int>& rect) const {
    const int bar = static_cast<int>(settings_.barSize * rect.getWidth());
    const int left = settings_.renderSpeedBar ? 2 * bar : 0;
    const int right = settings_.renderAltBar || settings_.renderVSpeedBar ? 2 * bar : 0;
    return {rect.UpperLeftCorner.X + left, rect.UpperLeftCorner.Y, rect.LowerRightCorner.X - right,
            rect.LowerRightCorner.Y};
}

void PfdBars::render(const irr::core::rect<int>&, const PfdReadings&) {}

} // namespace skyvane
