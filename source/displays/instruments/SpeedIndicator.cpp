#include "displays/instruments/SpeedIndicator.h"

#include "core/Context.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "procedures/aircraft/AircraftManager.h"
#include "sensors/records/AirSpeed_Data.h"
#include "sensors/records/GroundSpeed_Data.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

SpeedIndicator::SpeedIndicator(Context* context)
    : RoundDial(context), ground_(loadImage("media/speed_bg.png")), line_(loadImage("media/roundline.png")),
      plain_(loadImage("media/white.png")), needle_(loadImage("media/alt_100.png")),
      ring_(loadOrnament("media/gauge_back_back.png")), face_(context->getDrawer()) {}

DialEvidence SpeedIndicator::readValue() {
    DialEvidence evidence;
    const ScalarData* record = read<AirSpeed_Data>(ISensorData::AirSpeed, evidence);
    // A record that was never written (0 at time 0) is no air speed.
    groundSpeedShown_ = !record || (record->value == 0.0 && record->timeStamp == 0);
    if (groundSpeedShown_)
        record = read<GroundSpeed_Data>(ISensorData::GroundSpeed, evidence);
    metric_ = context_->getPanelManager()->isMetric();
    speed_ = (record ? record->value : 0.0) * (metric_ ? kilometresPerHourPerKnot : 1.0);
    evidence.finite = std::isfinite(speed_);
    return evidence;
}

/// The pilot may choose another aircraft at any time.
void SpeedIndicator::updateScale() {
    const SpeedScale knots = SpeedScale::of(context_->getAircraftManager()->getCurrentAircraft());
    scale_ = makeDrawable(metric_ ? knots.toMetric() : knots);
}

void SpeedIndicator::prepare(const DialFrame& frame) {
    updateScale();
    // Twice the size on the glass smooths the edges; the largest ones are smooth enough.
    constexpr int largestFace = 1400;
    face_.prepare(std::min(2 * frame.faceSize, std::max(frame.faceSize, largestFace)), metric_, scale_,
                  {&ground_, &line_, &plain_}, context_->getFlexibleFont());
}

void SpeedIndicator::drawLayers(const DialFrame& frame, DialFlag flag) {
    // Its arcs keep their colours, which mean something, also in doubt.
    drawer_->setColor(scaleColor(flag == DialFlag::Doubtful ? DialFlag::Good : flag));
    drawer_->setMaterialType(irr::video::EMT_SOLID);
    drawer_->Draw(face_.get(), frame.centre, {frame.faceSize, frame.faceSize}, 0.0f, {0.5f, 0.5f});
    drawer_->setMaterialType(irr::video::EMT_ONETEXTURE_BLEND);
    drawer_->setColor(scaleColor(flag));
    if (isValueShown(flag))
        drawHand(needle_, frame, -scale_.shownAngleOf(speed_));
    drawer_->setColor(drawer_->getDevice()->getGUIEnvironment()->getSkin()->getColor(irr::gui::EGDC_3D_HIGH_LIGHT));
    drawSquare(ring_, frame);
}

void SpeedIndicator::drawTexts(const irr::core::rect<int>& square) {
    if (groundSpeedShown_)
        word_.draw(context_->getFlexibleFont(), L"GroundSpeed", L"GroundSpeed",
                   boxInSquare(square, 0.5, 0.4, 0.26, 0.08), irr::video::SColor(0xffff0000));
}

} // namespace skyvane
