#include "displays/information/GliderPanel.h"

#include "core/Context.h"
#include "core/time/Time.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/glide/GliderGrid.h"
#include "gui/font/FlexibleFont.h"
#include "procedures/aircraft/profiles/Aircraft.h"

#include <algorithm>

namespace skyvane {

namespace {

using Rect = irr::core::rect<int>;

/// Two fields in a row: each label in an even column, its value beside it.
struct FieldLabel {
    const wchar_t* text;
    const wchar_t* stacked; ///< For narrow cells.
};
enum Field { Distance, Altitude, VSpeed, AverageVSpeed, CurrentRatio, AverageRatio, MinSinkSpeed, BestGlideSpeed };
constexpr FieldLabel labels[] = {{L"Distance:", L"Distance:"},
                                 {L"Altitude:", L"Altitude:"},
                                 {L"VSpeed: ", L"VSpeed: "},
                                 {L"Av. VSpeed: ", L"Av.\nVSpeed: "},
                                 {L"current GR:", L"current\nGR:"},
                                 {L"average GR:", L"average\nGR:"},
                                 {L"MinSinkSpeed: ", L"MinSink\nSpeed: "},
                                 {L"BestGlideSpeed: ", L"BestGlide\nSpeed: "}};
constexpr FieldLabel longestLabel = {L"BestGlideSpeed:", L"BestGlide\nSpeed:"};
constexpr FieldLabel longestValue = {L"-8888 feet/min", L"-8888\nfeet/min"};
constexpr FieldLabel heads[] = {{L"Factor:", L"Factor:"},
                                {L"current:", L"current:"},
                                {L"average:", L"average:"},
                                {L"best glide:", L"best\nglide:"}};
constexpr const wchar_t* factors[] = {L"100%", L"75%", L"50%", L"25%"};
constexpr FieldLabel longestTitle = {L"Altitude above destination Northcape Island (feet)",
                                     L"Altitude above destination\nNorthcape Island (feet)"};
constexpr const wchar_t* longestAltitude = L"-88888";
constexpr float textBorder = 0.15f;
constexpr int tableRow = glidergrid::titleRow + 1;

int rowOf(int field) {
    return field / 2;
}
int labelColumnOf(int field) {
    return 2 * (field % 2);
}

DialFlag flagOf(int field, const GliderReadings& readings) {
    switch (field) {
    case Distance:
        return readings.distance.flag;
    case Altitude:
        return readings.altitude.flag;
    case VSpeed:
        return readings.verticalSpeed.flag;
    case AverageVSpeed:
        return readings.averageVerticalSpeed.flag;
    case CurrentRatio:
        return readings.gradientFlags[GliderReadings::Current];
    case AverageRatio:
        return readings.gradientFlags[GliderReadings::Average];
    default:
        return DialFlag::Good;
    }
}

irr::video::SColor textColor(int row, int column, DialFlag flag) {
    const bool isMarked = flag == DialFlag::Doubtful || flag == DialFlag::Simulated;
    return isMarked ? DialFlagView::flagColor(flag) : irr::video::SColor(glidergrid::textColor(row, column));
}

bool isStackedLarger(FlexibleFont& font, const FieldLabel& sample, const Rect& box) {
    const irr::core::dimension2d<irr::u32> room(static_cast<irr::u32>(std::max(1, box.getWidth())),
                                                static_cast<irr::u32>(std::max(1, box.getHeight())));
    return font.calculateOptimalScale(sample.stacked, room) > font.calculateOptimalScale(sample.text, room);
}

} // namespace

GliderPanel::GliderPanel(Context* context, const Style& style)
    : IPanel(context), style_(style), destination_(*context), reader_(style.averageMilliseconds),
      flagView_(context->getDrawer()) {}

Rect GliderPanel::inside(const Rect& cell) const {
    const int margin = std::max(1, std::min(rect_.getWidth(), rect_.getHeight()) / 100);
    return {cell.UpperLeftCorner.X + 2 * margin, cell.UpperLeftCorner.Y + margin, cell.LowerRightCorner.X - 2 * margin,
            cell.LowerRightCorner.Y - margin};
}

/// For the two texts that share a row: they need its whole height.
Rect GliderPanel::insideWidth(const Rect& place) const {
    const Rect box = inside(place);
    return {box.UpperLeftCorner.X, place.UpperLeftCorner.Y, box.LowerRightCorner.X, place.LowerRightCorner.Y};
}

void GliderPanel::layOut(const Rect& rect, FlexibleFont& font) {
    if (rect == rect_ && &font == font_)
        return;
    rect_ = rect;
    font_ = &font;
    glidergrid::fill(grid_, rect, style_.color1.color, style_.color2.color);
    const Rect box = inside(glidergrid::cell(rect, 0, 0));
    areLabelsStacked_ = isStackedLarger(font, longestLabel, box);
    areValuesStacked_ = isStackedLarger(font, longestValue, box);
    isTitleStacked_ = isStackedLarger(font, longestTitle, insideWidth(glidergrid::titlePlace(rect)));
    areHeadsStacked_ =
        isStackedLarger(font, heads[GliderReadings::columns], insideWidth(glidergrid::headPlace(rect, 0)));
}

void GliderPanel::render(irr::core::rect<int> rect) {
    FlexibleFont* font = context_->getFlexibleFont();
    if (!font)
        return;
    layOut(rect, *font);
    const GliderReadings readings = reader_.read(destination_.read(), MilliSecs());
    context_->getDrawer()->draw(grid_);
    drawMarks(readings);
    context_->getDrawer()->flush();
    // The colours of the lower cells are close to those of their texts: a dark edge keeps them apart.
    const float border = font->getDefaultBorderSize(), fatness = font->getDefaultFatness();
    font->setDefaultBorderSize(textBorder);
    font->setDefaultFatness(fatness - textBorder);
    drawFields(font, readings);
    drawHeads(font);
    drawTable(font, readings);
    font->setDefaultBorderSize(border);
    font->setDefaultFatness(fatness);
}

void GliderPanel::drawMark(const Rect& place, DialFlag flag) {
    if (flag == DialFlag::Good)
        return;
    const int width = std::max(2, std::min(rect_.getWidth(), rect_.getHeight()) / 150);
    context_->getDrawer()->drawOutline(place, DialFlagView::flagColor(flag), width);
    if (flag == DialFlag::Failed)
        flagView_.drawCross(DialFlagView::crossPlace(inside(place)));
}

void GliderPanel::drawMarks(const GliderReadings& readings) {
    for (int field = 0; field < fields; ++field)
        drawMark(glidergrid::cell(rect_, rowOf(field), labelColumnOf(field) + 1), flagOf(field, readings));
    for (int column = 0; column < GliderReadings::columns; ++column)
        drawMark(glidergrid::cell(rect_, tableRow, column + 1, GliderReadings::factors), readings.tableFlags[column]);
}

ShortText GliderPanel::fieldText(int field, const GliderReadings& readings) const {
    const wchar_t* gap = areValuesStacked_ ? L"\n" : L" ";
    const Aircraft& aircraft = context_->getCurrentAircraft();
    switch (field) {
    case Distance:
        return formatGlideDistance(readings.distance, style_.units, gap);
    case Altitude:
        return formatGlideAltitude(readings.altitude, style_.units, gap);
    case VSpeed:
        return formatGlideVerticalSpeed(readings.verticalSpeed, style_.units, gap);
    case AverageVSpeed:
        return formatGlideVerticalSpeed(readings.averageVerticalSpeed, style_.units, gap);
    case CurrentRatio:
        return formatGradient(readings.gradients[GliderReadings::Current]);
    case AverageRatio:
        return formatGradient(readings.gradients[GliderReadings::Average]);
    case MinSinkSpeed:
        return formatGlideSpeed(aircraft.Vbe, style_.units, gap);
    default:
        return formatGlideSpeed(aircraft.Vbg, style_.units, gap);
    }
}

void GliderPanel::drawFields(FlexibleFont* font, const GliderReadings& readings) {
    const wchar_t* labelSample = areLabelsStacked_ ? longestLabel.stacked : longestLabel.text;
    const wchar_t* valueSample = areValuesStacked_ ? longestValue.stacked : longestValue.text;
    for (int field = 0; field < fields; ++field) {
        const int row = rowOf(field), column = labelColumnOf(field);
        labels_[field].draw(font, areLabelsStacked_ ? labels[field].stacked : labels[field].text, labelSample,
                            inside(glidergrid::cell(rect_, row, column)), glidergrid::textColor(row, column));
        values_[field].draw(font, fieldText(field, readings).c_str(), valueSample,
                            inside(glidergrid::cell(rect_, row, column + 1)),
                            textColor(row, column + 1, flagOf(field, readings)));
    }
}

void GliderPanel::drawHeads(FlexibleFont* font) {
    constexpr int row = glidergrid::titleRow;
    const ShortText title = formatTableTitle(destination_.getName(), style_.units, isTitleStacked_ ? L"\n" : L" ");
    title_.draw(font, title.c_str(), nullptr, insideWidth(glidergrid::titlePlace(rect_)),
                glidergrid::textColor(row, 0));
    const FieldLabel& longest = heads[GliderReadings::columns];
    for (int column = 0; column <= GliderReadings::columns; ++column)
        heads_[column].draw(font, areHeadsStacked_ ? heads[column].stacked : heads[column].text,
                            areHeadsStacked_ ? longest.stacked : longest.text,
                            insideWidth(glidergrid::headPlace(rect_, column)), glidergrid::textColor(row, column));
}

void GliderPanel::drawTable(FlexibleFont* font, const GliderReadings& readings) {
    for (int factor = 0; factor < GliderReadings::factors; ++factor) {
        const int row = tableRow + factor;
        factors_[factor].draw(font, factors[factor], longestAltitude, inside(glidergrid::cell(rect_, row, 0)),
                              glidergrid::textColor(row, 0));
        for (int column = 0; column < GliderReadings::columns; ++column) {
            const ShortText text =
                calcAltAboveString(readings.isTableValid, style_.units, readings.above[factor][column]);
            above_[factor][column].draw(font, text.c_str(), longestAltitude,
                                        inside(glidergrid::cell(rect_, row, column + 1)),
                                        textColor(row, column + 1, readings.tableFlags[column]));
        }
    }
}

} // namespace skyvane
