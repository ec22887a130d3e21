#include "displays/instruments/AttitudeIndicator.h"

#include "displays/drawing/Drawer2D.h"
#include "sensors/records/Attitude_Data.h"

#include <cmath>

namespace skyvane {

namespace {

const irr::core::rect<float> topPart(0.1875f, 0.0625f, 0.8125f, 0.5625f); // the symbol and pointer in its drawing

} // namespace

AttitudeIndicator::AttitudeIndicator(Context* context)
    : RoundDial(context), sky_(loadImage("media/att_sky.png")), ground_(loadImage("media/att_ground.png")),
      ladder_(loadImage("media/att_ladder.png")), bank_(loadImage("media/att_bank.png")),
      ring_(loadOrnament("media/gauge_back_back.png")), top_(loadImage("media/att_top.png")) {}

void AttitudeIndicator::setStyle(irr::video::SColor fill, const irr::video::SColor* outline) {
    fill_ = fill;
    outline_ = outline ? std::optional<irr::video::SColor>(*outline) : std::nullopt;
}

DialEvidence AttitudeIndicator::readValue() {
    DialEvidence evidence;
    const auto* attitude = read<Attitude_Data>(ISensorData::Attitude, evidence);
    evidence.finite = attitude && isFinite(attitude->matrix);
    pose_ = evidence.finite ? calcAttitudePose(attitude->matrix) : AttitudePose();
    return evidence;
}

void AttitudeIndicator::render(irr::core::rect<int> rect) {
    RoundDial::render(rect);
    if (outline_)
        drawer_->drawOutline(rect, *outline_);
}

void AttitudeIndicator::drawHorizon(const DialFrame& frame) {
    drawFace(pose_.pitchDegrees < 0.0 ? ground_ : sky_, frame, pose_.rollDegrees);
    const double edge = ladderFraction * frame.faceSize;
    const auto offset = calcLadderOffset(pose_, edge);
    const Drawer2D::Position centre(frame.centre.X + static_cast<int>(std::lround(offset.X)),
                                    frame.centre.Y + static_cast<int>(std::lround(offset.Y)));
    const int size = static_cast<int>(std::lround(edge));
    drawer_->Draw(ladder_.get(), centre, {size, size}, static_cast<float>(pose_.rollDegrees), {0.5f, 0.5f});
    drawFace(bank_, frame, pose_.rollDegrees);
}

void AttitudeIndicator::drawLayers(const DialFrame& frame, DialFlag flag) {
    if (isValueShown(flag))
        drawHorizon(frame);
    else
        drawDarkGround(frame);
    drawer_->setColor(fill_);
    drawSquare(ring_, frame);
}

void AttitudeIndicator::drawAboveBezel(const DialFrame& frame, DialFlag flag) {
    if (isValueShown(flag))
        drawFacePart(top_, topPart, frame, 0.0);
}

} // namespace skyvane
