#include "displays/instruments/BatteryPanelFactory.h"

#include "core/geometry/Rectangles.h"
#include "sensors/BatteryMonitor.h"

namespace skyvane {

void BatteryPanelFactory::renderPreview(irr::core::rect<int> rect) {
    if (!preview_)
        preview_ = std::make_unique<BatteryView>(context());
    BatteryReading sample;
    sample.state = BatteryMonitor::Discharging;
    sample.fill = 0.75;
    preview_->draw(makeXic(rect, batteryAspect), sample);
}

} // namespace skyvane
