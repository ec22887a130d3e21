#include "displays/instruments/VerticalSpeedIndicator.h"

#include "core/Context.h"
#include "core/text/Numbers.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/Needles.h"
#include "sensors/SensorManager.h"
#include "sensors/records/VerticalSpeed_Data.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace skyvane {

VerticalSpeedIndicator::VerticalSpeedIndicator(Context* context)
    : RoundDial(context), metric_(context->getPanelManager()->isMetric()),
      face_(loadImage(metric_ ? "media/vsi_bg_m.png" : "media/vsi_bg.png")), needle_(loadImage("media/alt_100.png")) {}

DialEvidence VerticalSpeedIndicator::readValue() {
    DialEvidence evidence;
    const auto* record = read<VerticalSpeed_Data>(ISensorData::VerticalSpeed, evidence);
    metresPerSecond_ = sensors_->getFilteredVerticalSpeed();
    evidence.finite = record && std::isfinite(record->value) && std::isfinite(metresPerSecond_);
    return evidence;
}

void VerticalSpeedIndicator::drawLayers(const DialFrame& frame, DialFlag flag) {
    drawer_->setColor(scaleColor(flag));
    drawFace(face_, frame, 0.0);
    if (isValueShown(flag))
        drawHand(needle_, frame, calcVerticalSpeedRotation(toFeetPerMinute(metresPerSecond_)));
}

void VerticalSpeedIndicator::drawTexts(const irr::core::rect<int>& square) {
    const std::string digits =
        metric_ ? toFixedText(metresPerSecond_, 1) : toFixedText(roundHalfAway(toFeetPerMinute(metresPerSecond_)), 0);
    std::array<wchar_t, 16> text{};
    std::copy_n(digits.begin(), std::min(digits.size(), text.size() - 1), text.begin());
    number_.draw(context_->getFlexibleFont(), text.data(), L"-8888", boxInSquare(square, 0.75, 0.5, 0.2, 0.09),
                 irr::video::SColor(0xffffffff));
}

} // namespace skyvane
