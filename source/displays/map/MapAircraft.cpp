#include "displays/map/MapAircraft.h"

#include "chart/geodesy/EarthConstants.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/Map2D.h"
#include "displays/map/MapImages.h"
#include "displays/map/MapReadings.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

const irr::video::SColor white(0xffffffff);
const irr::video::SColor yellow(0xffffff00);
const irr::video::SColor red(0xffff0000);
constexpr float standardShare = 0.79057f;
/// Of the screen's unit: the pictures are drawn for one of 500 pixels.
constexpr float pictureUnit = 500.0f;
constexpr int bigMarkEvery = 5;
/// Marks nearer to each other than so many of their thickness would look like a ladder.
constexpr double nearestMarks = 1.5;

irr::video::SColor colorOf(ISensor::WarningLevel level) {
    return level == ISensor::GOOD ? white : level == ISensor::MAYBE_WRONG ? yellow : red;
}

} // namespace

void MapAircraft::draw(const MapReadings& readings, const MapSettings& settings) {
    if (!readings.hasPosition)
        return;
    const auto turned = static_cast<float>(view_.getTopTrack() - readings.headingDegrees);
    if (settings.drawNose && settings.noseLength > 0 && readings.headingLevel != ISensor::WRONG)
        drawNose(settings.noseLength, turned);
    const auto edge = static_cast<int>(std::lround(settings.planeSize * standardShare * map_.getScreenUnit()));
    const irr::core::vector2d<int> place = toPixel(view_.toPanel(view_.getAircraft()));
    map_.getDrawer()->setColor(colorOf(readings.getWorst()));
    map_.getDrawer()->Draw(images_.plane.get(), place, {edge, edge}, turned, {0.5f, 0.5f});
    map_.getDrawer()->setColor(white);
}

void MapAircraft::drawNose(int length, float turnedDegrees) {
    Drawer2D* drawer = map_.getDrawer();
    const double unit = (map_.isMetric() ? 1000.0 : MetresPerNauticalMile) / view_.getMetresPerPixel();
    const double longest = 4.0 * (view_.getPanel().width + view_.getPanel().height);
    const double pixels = std::min(length * unit, longest);
    const float share = map_.getScreenUnit() * standardShare / pictureUnit;
    const irr::core::vector2d<int> place = toPixel(view_.toPanel(view_.getAircraft()));
    const auto size = [&](const PanelTexture& picture) {
        const irr::core::dimension2d<irr::u32> own =
            picture ? picture.get()->getSize() : irr::core::dimension2d<irr::u32>(0, 0);
        return irr::core::dimension2d<int>(std::max(1, static_cast<int>(std::lround(own.Width * share))),
                                           std::max(1, static_cast<int>(std::lround(own.Height * share))));
    };
    // The line's picture lies along x.
    drawer->Draw(images_.nose.get(), place, {static_cast<int>(std::lround(pixels)), size(images_.nose).Height},
                 turnedDegrees + 90.0f, {0.0f, 0.5f});
    const double nearest = nearestMarks * size(images_.noseSegment).Height;
    const int step = unit >= nearest ? 1 : unit * bigMarkEvery >= nearest ? bigMarkEvery : length;
    for (int mark = step; mark < length && mark * unit < longest; mark += step) {
        const PanelTexture& picture = mark % bigMarkEvery == 0 ? images_.noseSegmentBig : images_.noseSegment;
        const MapView::Point ahead =
            turnFromTop(MapView::Point(0.0, -mark * unit), -static_cast<double>(turnedDegrees));
        drawer->Draw(picture.get(), place + toPixel(ahead), size(picture), turnedDegrees, {0.5f, 0.5f});
    }
}

} // namespace skyvane
