#include "displays/map/MapControls.h"

#include "chart/geodesy/GreatCircle.h"
#include "core/Context.h"
#include "core/geometry/Rectangles.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/Map2D.h"
#include "displays/map/MapImages.h"
#include "displays/map/MapReadings.h"
#include "displays/mapmath/ScaleBar.h"
#include "gui/font/FlexibleFont.h"
#include "gui/skin/Skin.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace skyvane {
namespace {

using Rect = irr::core::rect<int>;

const irr::video::SColor white(0xffffffff);
const irr::video::SColor black(0xff000000);
const irr::video::SColor plate(0xb0101820);
const irr::video::SColor distancePlate(0xe8ffffff);
const irr::video::SColor warningPlate(0xe0c00000);
const irr::video::SColor zoomBarColor(0x203a4053);
const irr::video::SColor usedZoomBarColor(0x80404040);

constexpr float compassShare = 0.6f; // of a button's width
constexpr float zoomBarShare = 0.75f;
constexpr float needlePivot = 0.4765625f;
constexpr float smallText = 0.72f, troubleText = 0.85f;
constexpr float rowShare = 0.62f; // of a button's height
constexpr double drawingWidth = 1.25, drawingAspect = 3.0476190476190474, drawingText = 0.8;

} // namespace

MapControls::MapControls(Map2D& map, const MapView& view, const MapImages& images)
    : map_(map), view_(view), images_(images) {}

int MapControls::compassEdge() const {
    return static_cast<int>(std::lround(compassShare * map_.getContext()->getScreenMetrics().buttonWidth));
}

int MapControls::rowHeight() const {
    return static_cast<int>(std::lround(rowShare * map_.getContext()->getScreenMetrics().buttonHeight));
}

MapGestures::Places MapControls::places() const {
    const MapView::Panel& panel = view_.getPanel();
    MapGestures::Places places;
    places.size = MapGestures::Point(panel.width, panel.height);
    if (!isFollowing(view_.getMode()))
        return places;
    const double edge = compassEdge();
    places.compass = MapGestures::Rect(0.0, panel.height - edge, edge, panel.height);
    const double bar = std::lround(zoomBarShare * map_.getContext()->getScreenMetrics().buttonWidth);
    places.zoomBar = MapGestures::Rect(panel.width - bar, 0.0, panel.width, panel.height);
    return places;
}

void MapControls::set(CachedText& text, const wchar_t* words, irr::video::SColor color) const {
    if (FlexibleFont* font = map_.getContext()->getFlexibleFont())
        text.set(font, words, color);
}

int MapControls::widthOf(const wchar_t* words, float scale) const {
    FlexibleFont* font = map_.getContext()->getFlexibleFont();
    if (!font)
        return 0;
    const auto size = font->getDimensionWithTabs(words, font->getDefaultTabSize(), font->getDefaultScale() * scale);
    return static_cast<int>(size.Width);
}

void MapControls::drawText(CachedText& text, const Rect& panel, const Rect& place, float scale, bool hcenter) {
    FlexibleFont* font = map_.getContext()->getFlexibleFont();
    if (!font)
        return;
    map_.getDrawer()->flush();
    text.draw(place + panel.UpperLeftCorner, font->getDefaultScale() * scale, hcenter, true, &panel);
    map_.getDrawer()->setViewPort(panel);
}

void MapControls::draw(const Rect& panel, const MapReadings& readings, const MapGestures& gestures) {
    const bool follows = isFollowing(view_.getMode());
    plates_.clear();
    if (follows) {
        drawZoomBar(gestures);
        drawCompass(panel);
    } else {
        drawDistance(panel, readings);
    }
    const int left = follows ? compassEdge() + rowHeight() / 4 : rowHeight() / 4;
    drawOrientation(panel, left);
    drawScale(panel, left);
    drawTrouble(panel, readings);
}

void MapControls::drawPlate(const Rect& place, irr::video::SColor color) {
    map_.getDrawer()->drawRectWithCorner(place, place.getHeight() / 4, color);
    plates_.push_back(place);
}

void MapControls::drawCompass(const Rect& panel) {
    Drawer2D* drawer = map_.getDrawer();
    const int edge = compassEdge(), height = view_.getPanel().height;
    const Rect square(0, height - edge, edge, height);
    plates_.push_back(square);
    const int middle = static_cast<int>(map_.getContext()->getScreenMetrics().width) / 2;
    const bool isUnderMessages = panel.UpperLeftCorner.X <= middle && panel.UpperLeftCorner.X + edge >= middle;
    if (isUnderMessages)
        map_.getContext()->getPanelManager()->updateNonMessageYArea(panel.UpperLeftCorner.Y + square.UpperLeftCorner.Y,
                                                                    panel.UpperLeftCorner.Y + height);
    drawer->Draw(images_.compassGround.get(), square);
    const bool trackUp = view_.getMode() == MapMode::TrackUp;
    const PanelTexture& needle = trackUp ? images_.compassNeedle : images_.compassNeedleNorth;
    drawer->Draw(needle.get(), square.getCenter(), {edge, edge}, static_cast<float>(view_.getTopTrack()),
                 {needlePivot, needlePivot});
}

void MapControls::drawZoomBar(const MapGestures& gestures) {
    const MapGestures::Rect place = places().zoomBar;
    const Rect bar(static_cast<int>(place.UpperLeftCorner.X), 0, view_.getPanel().width, view_.getPanel().height);
    map_.getDrawer()->drawFilledRect(bar, gestures.isZoomBarUsed() ? usedZoomBarColor : zoomBarColor);
    if (!images_.zoomBar)
        return;
    const auto size = images_.zoomBar.get()->getSize();
    const int height =
        std::min(bar.getWidth() * static_cast<int>(size.Height) / std::max<int>(1, size.Width), bar.getHeight());
    const int top = (bar.getHeight() - height) / 2;
    map_.getDrawer()->Draw(images_.zoomBar.get(),
                           Rect(bar.UpperLeftCorner.X, top, bar.LowerRightCorner.X, top + height));
    const int beside = bar.getWidth() / 4; // the marks stand in the middle
    plates_.emplace_back(bar.UpperLeftCorner.X + beside, top, bar.LowerRightCorner.X - beside, top + height);
}

/// An arrow to what is true north, or "TRK" over the track: never to be guessed from the chart.
void MapControls::drawOrientation(const Rect& panel, int left) {
    const int height = rowHeight(), bottom = view_.getPanel().height - height - height / 2;
    const bool trackUp = view_.getMode() == MapMode::TrackUp;
    if (trackUp) {
        wchar_t words[16];
        const int track = static_cast<int>(std::lround(view_.getHeading())) % 360;
        std::swprintf(words, 16, L"TRK %03d\u00b0", track == 0 ? 360 : track);
        set(orientation_, words, white);
    } else {
        set(orientation_, L"N", white);
    }
    const int arrow = height * 2 / 3;
    const int width = widthOf(orientation_.getText().c_str(), smallText) + arrow + height;
    const Rect place(left, bottom - height, left + width, bottom);
    drawPlate(place, plate);
    const int x = left + height / 3 + arrow / 2, middle = place.getCenter().Y;
    std::vector<Drawer2D::Position> tip = {{x, middle - arrow / 2}, {x + arrow / 2, middle}, {x - arrow / 2, middle}};
    map_.getDrawer()->setColor(white);
    map_.getDrawer()->DrawFilledPolygon(tip);
    const int stem = std::max(1, arrow / 8);
    map_.getDrawer()->drawFilledRect(Rect(x - stem, middle, x + stem + 1, middle + arrow / 2), white);
    drawText(
        orientation_, panel,
        Rect(x + arrow / 2 + height / 6, place.UpperLeftCorner.Y, place.LowerRightCorner.X, place.LowerRightCorner.Y),
        smallText, false);
}

void MapControls::drawScale(const Rect& panel, int left) {
    Drawer2D* drawer = map_.getDrawer();
    const int height = rowHeight(), bottom = view_.getPanel().height - height / 4;
    const int wanted = widthOf(L"Distance: 0000.0 NM", smallText) - widthOf(L"100 NM", smallText);
    const ScaleBar bar = chooseScaleBar(wanted, view_.getMetresPerPixel(), map_.isMetric());
    const auto length = static_cast<int>(std::lround(std::min(bar.pixels, double(view_.getPanel().width))));
    wide_.assign(bar.text.begin(), bar.text.end());
    set(scale_, wide_.c_str(), white);
    const int pad = height / 3, text = widthOf(wide_.c_str(), smallText);
    const Rect place(left, bottom - height, left + length + text + 3 * pad, bottom);
    drawPlate(place, plate);
    const int from = left + pad, to = from + length, y = place.getCenter().Y, tick = height / 4;
    const int thick = std::max(2, height / 12);
    drawer->drawFilledRect(Rect(from, y - thick / 2, to, y - thick / 2 + thick), white);
    drawer->drawFilledRect(Rect(from, y - tick, from + thick, y + tick), white);
    drawer->drawFilledRect(Rect(to - thick, y - tick, to, y + tick), white);
    drawText(scale_, panel, Rect(to + pad / 2, place.UpperLeftCorner.Y, place.LowerRightCorner.X, bottom), smallText,
             false);
}

void MapControls::drawDistance(const Rect& panel, const MapReadings& readings) {
    const int height = rowHeight(), bottom = view_.getPanel().height - 2 * height - 3 * (height / 4) - height / 4;
    const bool known = readings.hasPosition && readings.positionLevel != ISensor::WRONG;
    const double metres = calcDistance2(view_.getAircraft(), view_.toChart(view_.getPivot()));
    const std::string text = "Distance: " + (known ? distanceText(metres, map_.isMetric()) : std::string("---"));
    wide_.assign(text.begin(), text.end());
    set(distance_, wide_.c_str(), black);
    const int left = height / 4, width = widthOf(wide_.c_str(), smallText) + height;
    const Rect place(left, bottom - height, left + width, bottom);
    drawPlate(place, distancePlate);
    drawText(distance_, panel, place, smallText, true);
}

void MapControls::drawTrouble(const Rect& panel, const MapReadings& readings) {
    const bool isTurned = view_.getMode() == MapMode::TrackUp, hasTerrain = map_.getSwitches().terrainEnable;
    const std::pair<bool, const wchar_t*> troubles[] = {
        {readings.positionLevel == ISensor::WRONG, L"NO POSITION"},
        {readings.headingLevel == ISensor::WRONG && isTurned, L"NO HEADING"},
        {readings.altitudeLevel == ISensor::WRONG && hasTerrain, L"NO ALTITUDE"}};
    const int height = map_.getContext()->getScreenMetrics().buttonHeight * 3 / 4;
    const int middle = view_.getPanel().width / 2;
    int top = view_.getPanel().height / 5;
    for (size_t i = 0; i < troubles_.size(); ++i) {
        if (!troubles[i].first)
            continue;
        set(troubles_[i], troubles[i].second, white);
        const int width = widthOf(troubles[i].second, troubleText) + height;
        const Rect place(middle - width / 2, top, middle - width / 2 + width, top + height);
        drawPlate(place, warningPlate);
        drawText(troubles_[i], panel, place, troubleText, true);
        top += height * 5 / 4;
    }
}

void MapControls::drawDrawingBox(const Rect& panel) {
    const auto* skin = map_.getContext()->getSkin();
    FlexibleFont* font = map_.getContext()->getFlexibleFont();
    const auto width = static_cast<int>(drawingWidth * map_.getContext()->getScreenMetrics().buttonWidth);
    const auto height = static_cast<int>(width / drawingAspect);
    const irr::core::vector2d<int> corner((view_.getPanel().width - width) / 2, view_.getPanel().height / 4);
    const Rect place(corner.X, corner.Y, corner.X + width, corner.Y + height);
    if (const ButtonTexture* ground = skin ? skin->getButtonTexture("drawing") : nullptr)
        ground->drawButton(place, nullptr);
    if (!font)
        return;
    set(drawing_, L"Drawing...", black);
    const float fit = font->calculateOptimalScale(
        L"Drawing...", {static_cast<irr::u32>(width * drawingText), static_cast<irr::u32>(height * drawingText)});
    drawText(drawing_, panel, place, fit / font->getDefaultScale().X, true);
}

} // namespace skyvane
