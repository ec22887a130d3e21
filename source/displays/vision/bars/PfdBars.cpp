#include "displays/vision/bars/PfdBars.h"

#include "core/Context.h"
#include "displays/PanelManager.h"
#include "displays/visionmath/PfdReadings.h"
#include "displays/visionmath/bars/PfdBarDrawing.h"
#include "displays/visionmath/bars/PfdLayout.h"

namespace skyvane {

PfdBars::PfdBars(Context* context, const VisionSettings& settings)
    : context_(context), settings_(settings), painter_(context), pen_(canvas_) {}

PfdBars::~PfdBars() = default;

irr::core::rect<int> PfdBars::getFreeRect(const irr::core::rect<int>& rect) const {
    return PfdLayout(rect, settings_).free;
}

irr::core::rect<int> PfdBars::getNextFixRect(const irr::core::rect<int>& rect) const {
    const ShapeRect place = PfdLayout(rect, settings_).nextFix;
    return {static_cast<int>(place.UpperLeftCorner.X), static_cast<int>(place.UpperLeftCorner.Y),
            static_cast<int>(place.LowerRightCorner.X), static_cast<int>(place.LowerRightCorner.Y)};
}

void PfdBars::render(const irr::core::rect<int>& rect, const PfdReadings& readings) {
    const PfdLayout layout(rect, settings_);
    canvas_.clear();
    drawPfdBars(pen_, {layout, settings_, readings});
    painter_.paint(canvas_);
    qnhRect_ = {};
    if (settings_.renderAltBar)
        qnhRect_ = {static_cast<int>(layout.qnh.UpperLeftCorner.X), static_cast<int>(layout.qnh.UpperLeftCorner.Y),
                    static_cast<int>(layout.qnh.LowerRightCorner.X), static_cast<int>(layout.qnh.LowerRightCorner.Y)};
    if (settings_.renderAltBar || settings_.renderSpeedBar)
        context_->getPanelManager()->updateNonMessageYArea(static_cast<int>(layout.groundSpeed.UpperLeftCorner.Y),
                                                           static_cast<int>(layout.groundSpeed.LowerRightCorner.Y));
}

} // namespace skyvane
