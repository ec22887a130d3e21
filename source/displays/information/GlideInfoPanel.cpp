#include "displays/information/GlideInfoPanel.h"

#include "core/Context.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/glide/GlideFormat.h"
#include "displays/instruments/OneSegmentPanel.h"
#include "gui/windows/Questions.h"
#include "procedures/aircraft/profiles/Aircraft.h"

#include <cmath>

namespace skyvane {

namespace {

using Rect = irr::core::rect<int>;

constexpr double gridLines[] = {0.05, 0.35, 0.65, 0.95};
constexpr const wchar_t* question =
    L"Please enter your inverse glide ratio (e.g. 40 for 1:40) or 0 for your aircraft's "
    L"default glide ratio";
constexpr const wchar_t* exampleRatio = L"1:40";
constexpr const wchar_t *longestRatio = L"1:-88.8", *longestAltitude = L"+88888 ft MSL",
                        *longestStacked = L"+88888\nft MSL";

irr::video::SColor valueColor(DialFlag flag) {
    return flag == DialFlag::Failed ? irr::video::SColor(0xffffffff) : DialFlagView::flagColor(flag);
}

} // namespace

GlideInfoPanel::GlideInfoPanel(Context* context, irr::video::SColor color)
    : IPanel(context), color_(color), destination_(*context),
      background_(context->getDrawer(), context->getPath(OneSegmentPanel::imagePath)), flagView_(context->getDrawer()) {
}

Rect GlideInfoPanel::part(const Rect& rect, int left, int top, int right, int bottom) {
    const auto x = [&](int line) {
        return rect.UpperLeftCorner.X + static_cast<int>(std::lround(rect.getWidth() * gridLines[line]));
    };
    const auto y = [&](int line) {
        return rect.UpperLeftCorner.Y + static_cast<int>(std::lround(rect.getHeight() * gridLines[line]));
    };
    return {x(left), y(top), x(right), y(bottom)};
}

double GlideInfoPanel::inverseGlideRatio() const {
    return userRatio_ != 0.0 ? userRatio_ : context_->getCurrentAircraft().inverseGlideRatio;
}

GlideInfoReadings GlideInfoPanel::read() {
    GlideSources sources = destination_.read();
    sources.inverseGlideRatio = inverseGlideRatio();
    return reader_.read(sources, MilliSecs());
}

void GlideInfoPanel::render(irr::core::rect<int> rect) {
    FlexibleFont* font = context_->getFlexibleFont();
    rect_ = rect;
    if (!font || !background_)
        return;
    const GlideInfoReadings readings = read();
    background_.draw(
        rect, color_,
        worseFlag(readings.ratio.flag, worseFlag(readings.altitude.flag, readings.averageVerticalSpeed.flag)));
    drawCrosses(readings);
    context_->getDrawer()->flush();
    drawLabels(font);
    drawValues(font, readings);
}

void GlideInfoPanel::drawCrosses(const GlideInfoReadings& readings) {
    const auto cross = [this](const GlideNumber& number, const Rect& place) {
        if (number.flag == DialFlag::Failed)
            flagView_.drawCross(DialFlagView::crossPlace(place));
    };
    cross(readings.ratio, part(rect_, 0, 1, 1, 2));
    cross(readings.altitude, part(rect_, 1, 1, 3, 2));
    cross(readings.averageVerticalSpeed, part(rect_, 1, 2, 3, 3));
}

void GlideInfoPanel::drawLabels(FlexibleFont* font) {
    const irr::video::SColor color = OneSegmentPanel::labelColor(color_);
    const GlideNumber set = {inverseGlideRatio() >= 1.0, inverseGlideRatio(), DialFlag::Good};
    const ShortText label =
        ShortText(ratioLabel).append(isTall() ? L"\n(" : L" (").append(formatGlideRatio(set).view()).append(L")");
    // Not larger than the values below.
    Rect place = part(rect_, 0, 0, 3, 1);
    const int margin = place.getHeight() / 8;
    place.UpperLeftCorner.Y += margin;
    place.LowerRightCorner.Y -= margin;
    ratioLabel_.draw(font, label.c_str(), nullptr, place, color);
    averageLabel_.draw(font, averageLabel, nullptr, part(rect_, 0, 2, 1, 3), color);
}

void GlideInfoPanel::drawValues(FlexibleFont* font, const GlideInfoReadings& readings) {
    const bool metric = context_->getPanelManager()->isMetric();
    const wchar_t* gap = isTall() ? L"\n" : L" ";
    const wchar_t* longest = isTall() ? longestStacked : longestAltitude;
    ratio_.draw(font, formatGlideRatio(readings.ratio).c_str(), longestRatio, part(rect_, 0, 1, 1, 2),
                valueColor(readings.ratio.flag));
    altitude_.draw(font, formatArrivalAltitude(readings.altitude, metric, gap).c_str(), longest,
                   part(rect_, 1, 1, 3, 2), valueColor(readings.altitude.flag));
    average_.draw(font, formatAverageVerticalSpeed(readings.averageVerticalSpeed, metric, gap).c_str(), longest,
                  part(rect_, 1, 2, 3, 3), valueColor(readings.averageVerticalSpeed.flag));
}

bool GlideInfoPanel::processEvent(irr::SEvent event) {
    // Also the label and the ratio to reckon with: a larger place for a finger.
    const PanelTap::Result result = tap_.take(event, part(rect_, 0, 0, 3, 2));
    if (result == PanelTap::Tapped)
        askForRatio();
    return result == PanelTap::NotMine;
}

void GlideInfoPanel::askForRatio() {
    const auto entered = askForNumber(*context_, L"Glide Ratio", question, formatRatio(userRatio_), exampleRatio);
    if (!entered)
        return;
    if (const auto ratio = parseInverseGlideRatio(*entered))
        userRatio_ = *ratio;
    else
        tellInBox(*context_, L"This is no glide ratio from 0 to 999. The former one stays.");
}

} // namespace skyvane
