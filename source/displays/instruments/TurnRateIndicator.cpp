#include "displays/instruments/TurnRateIndicator.h"

#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/ShortText.h"
#include "displays/gauges/TurnGauge.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/TurnRate_Data.h"

#include <cmath>

namespace skyvane {

namespace {

// Where things lie in the drawings, as fractions of their edge.
const irr::core::rect<float> planePart(0.0625f, 0.34375f, 0.9375f, 0.65625f);
const irr::core::rect<float> ballPart(0.4375f, 0.703125f, 0.5625f, 0.828125f);
const irr::core::rect<float> tubePart(0.108f, 0.7f, 0.892f, 0.824f);

} // namespace

TurnRateIndicator::TurnRateIndicator(Context* context, bool drawText)
    : RoundDial(context), face_(loadImage("media/turn_bg.png")), ball_(loadImage("media/turn_ball.png")),
      plane_(loadImage("media/turn_plane.png")), drawText_(drawText) {}

DialEvidence TurnRateIndicator::readValue() {
    readBall();
    DialEvidence evidence;
    const auto* record = read<TurnRate_Data>(ISensorData::TurnRate, evidence);
    degreesPerSecond_ = record ? record->value : 0.0;
    evidence.finite = std::isfinite(degreesPerSecond_);
    return evidence;
}

void TurnRateIndicator::readBall() {
    DialEvidence evidence;
    const auto* record = read<Acceleration_Data>(ISensorData::Acceleration, evidence);
    const double sideways = record ? calcSideways({record->x, record->y, record->z}) : 0.0;
    evidence.finite = std::isfinite(sideways);
    ballFlag_ = decideDialFlag(evidence);
    ballOffset_ = calcBallOffset(sideways);
}

void TurnRateIndicator::drawAboveBezel(const DialFrame& frame, DialFlag flag) {
    drawer_->setColor(scaleColor(flag));
    drawFace(face_, frame, 0.0);
    if (isValueShown(flag)) {
        drawBall(frame);
        drawer_->setColor(scaleColor(flag));
        drawFacePart(plane_, planePart, frame, calcTurnRotation(degreesPerSecond_));
    }
    drawer_->setColor(irr::video::SColor(0xffffffff));
}

void TurnRateIndicator::drawBall(const DialFrame& frame) {
    if (!isValueShown(ballFlag_)) {
        drawCross(facePart(tubePart, frame));
        return;
    }
    // The dark ball can't turn yellow: its tube does.
    DialFrame shifted = frame;
    shifted.centre.X += static_cast<int>(std::lround(ballOffset_ * frame.edge));
    if (ballFlag_ == DialFlag::Doubtful)
        drawer_->drawOutline(facePart(tubePart, frame), scaleColor(ballFlag_), 1 + frame.edge / 120);
    drawer_->setColor(irr::video::SColor(0xffffffff));
    drawFacePart(ball_, ballPart, shifted, 0.0);
}

void TurnRateIndicator::drawTexts(const irr::core::rect<int>& square) {
    if (drawText_)
        number_.draw(context_->getFlexibleFont(), formatTurnRate(degreesPerSecond_).c_str(), L"-88.8 \u00B0/s",
                     boxInSquare(square, 0.5, 0.25, 0.34, 0.085), irr::video::SColor(0xffffffff));
}

} // namespace skyvane
