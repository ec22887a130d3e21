#include "displays/instruments/SlipIndicator.h"

#include "core/Context.h"
#include "core/geometry/Rectangles.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/SensorReading.h"
#include "displays/gauges/ShortText.h"
#include "displays/gauges/TurnGauge.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/TurnRate_Data.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

using irr::video::SColor;

constexpr double markerHeight = 0.45; // of the strip's
constexpr double textMiddle = 0.85;
constexpr double textHeight = 0.26;
constexpr int textMargin = 2;
constexpr int smallestHeight = 8;

int roundToInt(double value) {
    return static_cast<int>(std::lround(value));
}

/// As wide as its drawing for a height.
irr::core::dimension2d<int> markerSize(const PanelTexture& image, int height) {
    const irr::core::dimension2d<irr::u32> natural = image.get()->getOriginalSize();
    return {roundToInt(static_cast<double>(height) * natural.Width / natural.Height), height};
}

bool isMarked(DialFlag flag) {
    return flag == DialFlag::Doubtful || flag == DialFlag::Simulated;
}

} // namespace

SlipIndicator::SlipIndicator(Context* context, const SlipStyle& style)
    : IPanel(context), drawer_(context->getDrawer()), style_(style),
      ground_(loadPanelImage(context, "media/slip_bg.png")), upper_(loadPanelImage(context, "media/slip_top.png")),
      lower_(loadPanelImage(context, "media/slip_bot.png")), flagView_(drawer_) {}

void SlipIndicator::readValues() {
    SensorManager& sensors = *context_->getSensorManager();
    DialEvidence slip, turn;
    const auto* acceleration = readDefault<Acceleration_Data>(sensors, ISensorData::Acceleration, slip);
    sideways_ = acceleration ? calcSideways({acceleration->x, acceleration->y, acceleration->z}) : 0.0;
    slip.finite = std::isfinite(sideways_);
    const auto* rate = readDefault<TurnRate_Data>(sensors, ISensorData::TurnRate, turn);
    degreesPerSecond_ = rate ? rate->value : 0.0;
    turn.finite = std::isfinite(degreesPerSecond_);
    slipFlag_ = upper_ ? decideDialFlag(slip) : DialFlag::Failed;
    turnFlag_ = lower_ ? decideDialFlag(turn) : DialFlag::Failed;
}

void SlipIndicator::render(irr::core::rect<int> rect) {
    const irr::core::rect<int> strip = makeXic(rect, slipAspect);
    if (strip.getHeight() < smallestHeight)
        return;
    readValues();
    drawer_->drawFilledRect(strip, style_.background);
    drawer_->setViewPort(strip);
    drawStrip(strip.getWidth(), strip.getHeight());
    drawer_->resetViewPort();
    if (style_.drawText && isValueShown(turnFlag_))
        drawText(strip);
    for (DialFlag flag : {slipFlag_, turnFlag_})
        if (isMarked(flag))
            drawer_->drawOutline(strip, DialFlagView::flagColor(flag), 2);
}

void SlipIndicator::drawStrip(int width, int height) {
    const int marker = roundToInt(markerHeight * height);
    drawer_->setColor(SColor(0xffffffff));
    drawer_->Draw(ground_.get(), {width / 2, height / 2}, {width, width}, 0.0f, {0.5f, 0.5f});
    if (isValueShown(slipFlag_))
        drawer_->Draw(upper_.get(), {roundToInt(width * (0.5 + calcSlipOffset(sideways_))), 0},
                      markerSize(upper_, marker), 0.0f, {0.5f, 0.0f});
    else
        flagView_.drawCross({(width - height) / 2, 0, (width + height) / 2, height / 2});
    if (!isValueShown(turnFlag_)) {
        flagView_.drawCross({(width - height) / 2, height / 2, (width + height) / 2, height});
        return;
    }
    drawer_->setColor(SColor(0xff000000));
    drawer_->Draw(lower_.get(), {roundToInt(width * (0.5 + calcTurnMarkOffset(degreesPerSecond_))), height},
                  markerSize(lower_, marker), 0.0f, {0.5f, 1.0f});
    drawer_->setColor(SColor(0xffffffff));
}

void SlipIndicator::drawText(const irr::core::rect<int>& strip) {
    FlexibleFont* font = context_->getFlexibleFont();
    const irr::core::dimension2d<int> room(strip.getWidth() / 2, roundToInt(textHeight * strip.getHeight()));
    const irr::core::dimension2d<int> size =
        rateText_.set(font, formatTurnRate(degreesPerSecond_).c_str(), L"-88.8 \u00B0/s", room,
                      turnFlag_ == DialFlag::Good ? style_.text : DialFlagView::flagColor(turnFlag_));
    const int half = size.Width / 2 + textMargin;
    const int middle = std::clamp(strip.UpperLeftCorner.X +
                                      roundToInt(strip.getWidth() * (0.5 + calcTurnMarkOffset(degreesPerSecond_))),
                                  strip.UpperLeftCorner.X + half, strip.LowerRightCorner.X - half);
    const int top = strip.UpperLeftCorner.Y + roundToInt(textMiddle * strip.getHeight()) - size.Height / 2;
    const irr::core::rect<int> box(middle - half, top, middle + half, top + size.Height);
    drawer_->drawFilledRect(box, SColor(0xff000000));
    drawer_->flush();
    rateText_.draw(box);
}

} // namespace skyvane
