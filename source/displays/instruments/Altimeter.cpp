#include "displays/instruments/Altimeter.h"

#include "core/Context.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/Needles.h"
#include "sensors/SensorManager.h"

#include <cmath>

namespace skyvane {

Altimeter::Altimeter(Context* context)
    : RoundDial(context), face_(loadImage("media/alt_bg.png")), tenThousands_(loadImage("media/alt_10000.png")),
      thousands_(loadImage("media/alt_1000.png")), hundreds_(loadImage("media/alt_100.png")) {}

DialEvidence Altimeter::readValue() {
    DialEvidence evidence;
    read<ISensorData>(sensors_->getIndicatedAltitudeSource(), evidence);
    const double metres = sensors_->getIndicatedAltitude();
    altitude_ = context_->getPanelManager()->isMetric() ? metres : metres / metresPerFoot;
    evidence.finite = std::isfinite(altitude_);
    return evidence;
}

void Altimeter::drawLayers(const DialFrame& frame, DialFlag flag) {
    drawer_->setColor(scaleColor(flag));
    drawFace(face_, frame, 0.0);
    if (!isValueShown(flag))
        return;
    const AltimeterHands hands = calcAltimeterHands(altitude_);
    drawHand(tenThousands_, frame, hands.tenThousands);
    drawHand(thousands_, frame, hands.thousands);
    drawHand(hundreds_, frame, hands.hundreds);
}

} // namespace skyvane
