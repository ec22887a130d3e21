#include "displays/instruments/Compass.h"

#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/Needles.h"
#include "procedures/framework/IProcedure.h"
#include "sensors/records/GPS_Data.h"
#include "sensors/records/Heading_Data.h"

#include <cmath>

namespace skyvane {

namespace {

const irr::video::SColor headingBugColor(0xffff8600);
const irr::video::SColor procedureBugColor(0xffff50ff);
const irr::core::rect<float> bugPart(0.4375f, 0.0f, 0.5625f, 0.0625f); // of its drawing

} // namespace

Compass::Compass(Context* context)
    : RoundDial(context), card_(loadImage("media/comp_card.png")), plane_(loadImage("media/comp_plane.png")),
      bug_(loadImage("media/comp_bug.png")), ring_(loadOrnament("media/gauge_back_back.png")) {}

void Compass::setStyle(irr::video::SColor fill, const irr::video::SColor* outline) {
    fill_ = fill;
    outline_ = outline ? std::optional<irr::video::SColor>(*outline) : std::nullopt;
}

DialEvidence Compass::readValue() {
    DialEvidence evidence;
    double heading = 0.0;
    if (const auto* record = read<Heading_Data>(ISensorData::Heading, evidence)) {
        heading = record->value;
    } else if (const auto* satellite = read<GPS_Data>(ISensorData::GPS, evidence)) {
        evidence.present = satellite->groundTrackAvailable;
        heading = satellite->groundTrack;
    }
    evidence.finite = std::isfinite(heading);
    if (evidence.present && evidence.finite)
        heading_ = heading;
    return evidence;
}

void Compass::render(irr::core::rect<int> rect) {
    touchArea_ = rect;
    RoundDial::render(rect);
    if (outline_)
        drawer_->drawOutline(rect, *outline_);
}

/// None without a plan, and while nobody knows it: without a position the mark would stand near north.
std::optional<double> Compass::procedureBearing() const {
    const IProcedure* procedure = context_->getCurrentProcedure();
    const double bearing = procedure ? procedure->getBearing() : -1.0;
    return bearing >= 0.0 ? std::optional<double>(bearing) : std::nullopt;
}

void Compass::drawBugs(const DialFrame& frame) {
    drawer_->setColor(headingBugColor);
    drawFacePart(bug_, bugPart, frame, heading_ + bugOffset_);
    if (const std::optional<double> bearing = procedureBearing()) {
        drawer_->setColor(procedureBugColor);
        drawFacePart(bug_, bugPart, frame, heading_ - *bearing);
    }
}

void Compass::drawLayers(const DialFrame& frame, DialFlag flag) {
    drawDarkGround(frame);
    drawer_->setColor(scaleColor(flag));
    if (isValueShown(flag))
        drawFace(card_, frame, heading_);
    drawFace(plane_, frame, 0.0);
    if (isValueShown(flag))
        drawBugs(frame);
    if (fill_) {
        drawer_->setColor(*fill_);
        drawSquare(ring_, frame);
    }
}

bool Compass::processEvent(irr::SEvent event) {
    if (event.EventType != irr::EET_MOUSE_INPUT_EVENT)
        return true;
    const irr::SEvent::SMouseInput& mouse = event.MouseInput;
    const bool dragged = mouse.Event == irr::EMIE_MOUSE_MOVED && mouse.isLeftPressed();
    const irr::core::vector2d<int> pointer(mouse.X, mouse.Y);
    if ((mouse.Event != irr::EMIE_LMOUSE_LEFT_UP && !dragged) || !touchArea_.isPointInside(pointer))
        return true;
    bugOffset_ = calcRotationToPointer(touchArea_.getCenter(), pointer) - heading_;
    return false;
}

} // namespace skyvane
