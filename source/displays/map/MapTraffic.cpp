#include "displays/map/MapTraffic.h"

#include "core/Context.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/Map2D.h"
#include "displays/map/MapImages.h"
#include "displays/mapmath/AltitudeTint.h"
#include "displays/mapmath/TrafficPicture.h"
#include "gui/font/FlexibleFont.h"
#include "sensors/SensorManager.h"
#include "sensors/records/Traffic_Data.h"

#include <cmath>

namespace skyvane {
namespace {

const irr::video::SColor symbolColor(0xff87a3ff);
const irr::video::SColor white(0xffffffff);
const irr::video::SColor plateColor(0xb0101820);
constexpr double smallFromArea = 15.0;
constexpr float smallShare = 0.5f;
constexpr float differenceScale = 0.75f, nameScale = 0.5f;
constexpr size_t mostTargets = 300;

/// What the record says while its sensor stands by it, else null.
const Traffic_Data* readTraffic(SensorManager& sensors) {
    ISensor* sensor = sensors.getDefaultSensor(ISensorData::Traffic);
    if (!sensor || sensor->getWarning(ISensorData::Traffic) == ISensor::WRONG)
        return nullptr;
    return static_cast<const Traffic_Data*>(sensor->getData(ISensorData::Traffic));
}

} // namespace

void MapTraffic::draw(const irr::core::rect<int>& panel, int filterFeet) {
    used_ = 0;
    SensorManager* sensors = map_.getContext()->getSensorManager();
    const Traffic_Data* traffic = readTraffic(*sensors);
    if (!traffic || traffic->elements.empty())
        return;
    const TrafficSituation situation{map_.getAltitude(), sensors->getSeaLevelPressure(), filterFeet, map_.isMetric()};
    const float size = map_.getSymbolUnit() * (view_.getViewArea() <= smallFromArea ? 1.0f : smallShare);
    const int edge = std::max(8, static_cast<int>(std::lround(size)));
    for (const auto& entry : traffic->elements) {
        if (!entry.second || used_ >= mostTargets)
            continue;
        const ChartPosition position(entry.second->longitude, entry.second->latitude);
        if (!map_.isInside(position, edge, edge, false))
            continue;
        if (const auto target = describeTraffic(*entry.second, situation))
            drawTarget(*target, map_.calcScreenCoordinates(position.longitude, position.latitude, false), edge);
    }
    map_.getDrawer()->setColor(white);
    map_.getDrawer()->flush();
    drawTexts(panel, edge);
}

void MapTraffic::drawTarget(const TrafficPicture& target, const irr::core::vector2d<int>& place, int edge) {
    Drawer2D* drawer = map_.getDrawer();
    drawer->setColor(symbolColor);
    // The picture's arrow points up; a target that doesn't tell its track stands as a diamond.
    if (target.trackDegrees) {
        const auto turned = static_cast<float>(view_.getTopTrack() - *target.trackDegrees);
        drawer->Draw(images_.traffic.get(), place, {edge, edge}, turned, {0.5f, 0.5f});
    } else {
        const int half = edge * 2 / 5;
        const std::vector<Drawer2D::Position> outer = {
            {place.X, place.Y - half}, {place.X + half, place.Y}, {place.X, place.Y + half}, {place.X - half, place.Y}};
        drawer->setColor(irr::video::SColor(0xff101828));
        drawer->DrawFilledPolygon(outer);
        drawer->setColor(symbolColor);
        drawer->DrawPolygon(nullptr, outer, std::max(2, edge / 12));
    }
    if (used_ == texts_.size())
        texts_.push_back(std::make_unique<Texts>());
    Texts& texts = *texts_[used_++];
    texts.place = place;
    FlexibleFont* font = map_.getContext()->getFlexibleFont();
    if (!font)
        return;
    const auto color =
        target.differenceMetres ? irr::video::SColor(altitudeTint(std::fabs(*target.differenceMetres))) : white;
    wide_.assign(target.differenceText.begin(), target.differenceText.end());
    if (target.trend != 0)
        wide_ += target.trend > 0 ? L" ^" : L" v";
    texts.difference.set(font, wide_.c_str(), color);
    wide_.assign(target.name.begin(), target.name.end());
    texts.name.set(font, wide_.c_str(), white);
}

/// Behind the texts, in the panel's viewport, so that they can be read on any ground.
void MapTraffic::drawPlates(int edge, float scale) {
    for (size_t i = 0; i < used_; ++i) {
        const auto widthOf = [scale](const CachedText& text, float share) {
            return static_cast<int>(text.getDimension().Width * scale * share);
        };
        const auto heightOf = [scale](const CachedText& text, float share) {
            return static_cast<int>(text.getDimension().Height * scale * share);
        };
        const Texts& texts = *texts_[i];
        const int width = std::max(widthOf(texts.difference, differenceScale), widthOf(texts.name, nameScale)) + 8;
        const int height = heightOf(texts.difference, differenceScale) * 4 / 5 + heightOf(texts.name, nameScale);
        const int left = texts.place.X - width / 2, top = texts.place.Y + edge / 2;
        map_.getDrawer()->drawRectWithCorner({left, top, left + width, top + height}, height / 6, plateColor);
    }
    map_.getDrawer()->flush();
}

void MapTraffic::drawTexts(const irr::core::rect<int>& panel, int edge) {
    FlexibleFont* font = map_.getContext()->getFlexibleFont();
    if (!font)
        return;
    const float border = font->getDefaultBorderSize(), fatness = font->getDefaultFatness();
    font->setDefaultBorderSize(0.0f);
    const irr::core::vector2d<float> scale = font->getDefaultScale();
    drawPlates(edge, scale.X);
    for (size_t i = 0; i < used_; ++i) {
        const Texts& texts = *texts_[i];
        irr::core::vector2d<int> top = panel.UpperLeftCorner + texts.place;
        top.Y += edge / 2;
        for (const auto& [text, share] :
             {std::make_pair(&texts.difference, differenceScale), std::make_pair(&texts.name, nameScale)}) {
            const auto width = static_cast<int>(text->getDimension().Width * scale.X * share) + 2;
            const auto height = static_cast<int>(text->getDimension().Height * scale.Y * share);
            const irr::core::rect<int> box(top.X - width / 2, top.Y, top.X - width / 2 + width, top.Y + height);
            text->draw(box, scale * share, true, false, &panel);
            top.Y += height * 4 / 5;
        }
    }
    font->setDefaultBorderSize(border);
    font->setDefaultFatness(fatness);
}

} // namespace skyvane
