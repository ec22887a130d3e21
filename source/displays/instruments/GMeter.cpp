#include "displays/instruments/GMeter.h"

#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/LoadGauge.h"
#include "displays/gauges/ShortText.h"
#include "sensors/records/Acceleration_Data.h"

#include <cmath>

namespace skyvane {

GMeter::GMeter(Context* context)
    : RoundDial(context), face_(loadImage("media/acc.png")), needle_(loadImage("media/alt_100.png")) {}

DialEvidence GMeter::readValue() {
    DialEvidence evidence;
    const auto* record = read<Acceleration_Data>(ISensorData::Acceleration, evidence);
    load_ = record ? calcLoad(record->y) : 0.0;
    evidence.finite = std::isfinite(load_);
    return evidence;
}

void GMeter::drawLayers(const DialFrame& frame, DialFlag flag) {
    drawer_->setColor(scaleColor(flag));
    drawFace(face_, frame, 0.0);
    if (isValueShown(flag))
        drawHand(needle_, frame, calcLoadRotation(load_));
}

void GMeter::drawTexts(const irr::core::rect<int>& square) {
    // In the lower three quarters, below the hub.
    number_.draw(context_->getFlexibleFont(), formatLoad(load_).c_str(), L"-88.8",
                 boxInSquare(square, 0.5, 0.645, 0.26, 0.115), irr::video::SColor(0xffffffff));
}

} // namespace skyvane
