#include "displays/instruments/WarningLamp.h"

#include "core/Context.h"
#include "core/geometry/Rectangles.h"
#include "displays/drawing/Drawer2D.h"
#include "procedures/framework/IProcedure.h"
#include "sensors/SensorManager.h"

namespace skyvane {

namespace {

const irr::video::SColor white(0xffffffff);

const char* imageOf(WarningType type) {
    switch (type) {
    case WarningType::ALTITUDE:
        return "media/lamp_alt.png";
    case WarningType::COURSE:
        return "media/lamp_course.png";
    case WarningType::SPEED:
        return "media/lamp_speed.png";
    default:
        return "media/lamp_bg.png";
    }
}

} // namespace

LampView::LampView(Context* context, WarningType type)
    : drawer_(context->getDrawer()), tinted_(loadPanelImage(context, imageOf(type))) {
    if (type == WarningType::DEFAULTSENSORS)
        top_ = loadPanelImage(context, "media/lamp.png");
}

void LampView::draw(irr::core::rect<int> rect, irr::video::SColor color) const {
    makeQuadratic(rect);
    drawer_->setColor(color);
    if (tinted_)
        drawer_->Draw(tinted_.get(), rect);
    else
        drawer_->drawFilledRect(rect, color);
    drawer_->setColor(white);
    drawer_->Draw(top_.get(), rect);
}

WarningLamp::WarningLamp(Context* context, WarningType type) : IPanel(context), type_(type), view_(context, type) {}

LampWatch WarningLamp::watch() const {
    IProcedure* procedure = context_->getCurrentProcedure();
    // Without a place or a path nobody knows: green would say that all is well.
    if (!procedure || procedure->getType() == IProcedure::None || procedure->getLength() < 0.0)
        return LampWatch();
    if (type_ == WarningType::ALTITUDE)
        return {true, procedure->isAltitudeChecked(), procedure->getAltitudeWarning()};
    if (type_ == WarningType::COURSE)
        return {true, procedure->isCourseChecked(), procedure->getCourseWarning()};
    return {true, procedure->isGroundSpeedChecked(), procedure->getGroundSpeedWarning()};
}

irr::video::SColor WarningLamp::color() const {
    if (type_ == WarningType::DEFAULTSENSORS)
        return sensorLampColor(context_->getSensorManager()->getDefaultSensorsWarningLevel());
    return procedureLampColor(watch());
}

void WarningLamp::render(irr::core::rect<int> rect) {
    area_ = makeQuadratic(rect);
    view_.draw(rect, color());
}

bool WarningLamp::processEvent(irr::SEvent event) {
    if (type_ != WarningType::DEFAULTSENSORS)
        return true;
    const PanelTap::Result result = tap_.take(event, area_);
    if (result == PanelTap::Tapped)
        context_->showMessageBox(describeSensors(*context_->getSensorManager()));
    return result == PanelTap::NotMine;
}

} // namespace skyvane
