#include "displays/instruments/BatteryPanel.h"

#include "core/Context.h"
#include "core/geometry/Rectangles.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "sensors/BatteryMonitor.h"
#include "sensors/SensorManager.h"

#include <cmath>

namespace skyvane {

namespace {

const irr::video::SColor white(0xffffffff);

} // namespace

BatteryView::BatteryView(Context* context)
    : drawer_(context->getDrawer()), shadow_(loadPanelImage(context, "media/battery2Shadow.png")),
      color_(loadPanelImage(context, "media/battery2Color.png")),
      light_(loadPanelImage(context, "media/battery2Light.png")),
      charging_(loadPanelImage(context, "media/battery2Charging.png")),
      unknown_(loadPanelImage(context, "media/battery2Unknown.png")) {}

void BatteryView::drawFill(const irr::core::rect<int>& rect, double fill) const {
    const auto cut = static_cast<float>(fill);
    const int border = rect.UpperLeftCorner.X + static_cast<int>(std::lround(fill * rect.getWidth()));
    const auto drawPart = [&](float from, float to, int left, int right) {
        const Drawer2D::PointF corners[4] = {{from, 0.0f}, {to, 0.0f}, {from, 1.0f}, {to, 1.0f}};
        drawer_->setTextureCoordinates(corners);
        drawer_->Draw(color_.get(), {left, rect.UpperLeftCorner.Y, right, rect.LowerRightCorner.Y});
    };
    drawer_->setColor(irr::video::SColor(batteryColor(fill)));
    drawPart(0.0f, cut, rect.UpperLeftCorner.X, border);
    drawer_->setColor(white);
    drawPart(cut, 1.0f, border, rect.LowerRightCorner.X);
    drawer_->setTextureCoordinates(nullptr);
}

void BatteryView::draw(const irr::core::rect<int>& rect, const BatteryReading& battery) const {
    drawer_->setTextureWrap(false, false);
    drawer_->setColor(white);
    drawer_->Draw(shadow_.get(), rect);
    drawFill(rect, shownFill(battery));
    drawer_->Draw(light_.get(), rect);
    if (battery.state == BatteryMonitor::ChargingOrFull)
        drawer_->Draw(charging_.get(), rect);
    else if (battery.state == BatteryMonitor::Unknown)
        drawer_->Draw(unknown_.get(), rect);
    drawer_->setTextureWrap(true, true);
}

BatteryReading BatteryPanel::read() const {
    const SensorManager& sensors = *context_->getSensorManager();
    BatteryReading battery;
    battery.state = sensors.getBatteryState();
    battery.fill = sensors.getBatteryFill();
    return battery;
}

void BatteryPanel::render(irr::core::rect<int> rect) {
    area_ = makeXic(rect, batteryAspect);
    view_.draw(area_, read());
}

bool BatteryPanel::processEvent(irr::SEvent event) {
    const PanelTap::Result result = tap_.take(event, area_);
    if (result == PanelTap::Tapped) {
        SensorManager& sensors = *context_->getSensorManager();
        BatteryReading battery = read();
        double fillPerSecond = 0.0;
        if (sensors.getBatteryChargeSpeed(fillPerSecond))
            battery.fillPerSecond = fillPerSecond;
        battery.measurementAgeSeconds = Secs() - sensors.getLastChargeSpeedMeasurementTime();
        context_->showMessageBox(describeBattery(battery));
    }
    return result == PanelTap::NotMine;
}

} // namespace skyvane
