#include "displays/vision/TrafficView.h"

#include "attitude/math/Matrix3x3.h"
#include "chart/geodesy/Barometry.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"
#include "core/Context.h"
#include "core/text/Numbers.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/SensorReading.h"
#include "displays/shapes/Strokes.h"
#include "displays/vision/SceneStage.h"
#include "gui/font/FlexibleFont.h"
#include "gui/font/RimmedLetters.h"
#include "sensors/SensorManager.h"
#include "sensors/records/Traffic_Data.h"

#include <algorithm>
#include <cmath>
#include <cwchar>

namespace skyvane {
namespace {

constexpr int unknownAltitude = -100000;
constexpr double unknownDegrees = -360.0;
constexpr uint32_t trafficColor = 0xff87a3ff;
constexpr double symbolShare = 0.065; // of the panel's height, or of its width where that is smaller
/// Of the whole line, whose digits are about half as high.
constexpr double leastTextHeight = 22.0, textShare = 0.6;
/// A mesh seems at least as large as this share of its distance, so that it can be seen far off.
constexpr double leastShare = 0.012;
constexpr double leastMetres = 15.0;

} // namespace

TrafficView::TrafficView(Context* context)
    : context_(context), drawer_(context->getDrawer()), picture_(loadPanelImage(context, "media/traffic3d.png")),
      mesh_(context, "media/traffic.b3d", picture_.get()) {}

TrafficView::Altimeter TrafficView::readAltimeter() const {
    SensorManager& sensors = *context_->getSensorManager();
    Altimeter altimeter{sensors.getIndicatedAltitude(), sensors.getSeaLevelPressure()};
    // A difference to an altitude that was lost would look like a fresh one.
    DialEvidence evidence;
    readDefaultRecord(sensors, sensors.getIndicatedAltitudeSource(), evidence);
    evidence.finite = std::isfinite(altimeter.metres);
    altimeter.isShown = isValueShown(decideDialFlag(evidence));
    return altimeter;
}

bool TrafficView::locate(const TrafficElement& element, const Altimeter& altimeter, const ChartPosition& origin,
                         double heightMetres, Target& target) const {
    const bool known = element.longitude > unknownDegrees && element.latitude > unknownDegrees &&
                       std::isfinite(element.longitude) && std::abs(element.latitude) <= 90.0;
    if (!known)
        return false;
    const double altitude = convertPressureAltitude2MSL(element.altitude * MetresPerFoot, altimeter.seaLevelMillibars);
    target.isAltitudeKnown = altimeter.isShown && element.altitude != unknownAltitude && std::isfinite(altitude);
    target.aboveMetres = target.isAltitudeKnown ? altitude - altimeter.metres : 0.0;
    target.place = ChartPosition2Vector3df64(origin, {element.longitude, element.latitude},
                                             target.isAltitudeKnown ? altitude : heightMetres);
    target.metres = target.place.getDistanceFrom({0.0, heightMetres, 0.0});
    const double track = static_cast<double>(element.track);
    target.trackDegrees = track > unknownDegrees && std::isfinite(track) ? track : 0.0;
    return std::isfinite(target.metres);
}

void TrafficView::drawMeshes(SceneStage& stage, const ChartPosition& origin, double heightMetres, double sightMetres) {
    targets_.clear();
    SensorManager& sensors = *context_->getSensorManager();
    ISensor* sensor = sensors.getDefaultSensor(ISensorData::Traffic);
    const auto* traffic = sensor ? static_cast<Traffic_Data*>(sensor->getData(ISensorData::Traffic)) : nullptr;
    if (!traffic || sensor->getWarning(ISensorData::Traffic) == ISensor::WRONG)
        return;
    const Altimeter altimeter = readAltimeter();
    Target target;
    for (const auto& each : traffic->elements)
        if (locate(*each.second, altimeter, origin, heightMetres, target) && target.metres < sightMetres)
            targets_.push_back(target);
    const auto isNearer = [](const Target& a, const Target& b) { return a.metres < b.metres; };
    std::sort(targets_.begin(), targets_.end(), isNearer);
    if (targets_.size() > mostShown)
        targets_.resize(mostShown);
    for (const Target& each : targets_)
        mesh_.draw(stage, each.place, createYawMatrix(each.trackDegrees / DegreesPerRadian),
                   std::max(leastMetres, leastShare * each.metres), irr::video::SColor(0xffffffff));
}

void TrafficView::drawSymbols(const SceneStage& stage, const irr::core::rect<int>& rect) {
    shapes_.clear();
    FlexibleFont* font = context_->getFlexibleFont();
    const double edge = symbolShare * std::min(rect.getWidth(), rect.getHeight());
    const bool metric = context_->getPanelManager()->isMetric();
    ShapePath frame(4);
    std::array<Lens::Point, mostShown> places;
    std::array<bool, mostShown> seen{};
    for (size_t i = 0; i < targets_.size(); ++i) {
        const auto place = stage.getLens().project(stage.getPose(), targets_[i].place - stage.getPose().position);
        if (!place)
            continue;
        places[i] = *place;
        seen[i] = true;
        const double half = edge / 2.0;
        frame = {*place + ShapePoint(0, -half), *place + ShapePoint(half, 0), *place + ShapePoint(0, half),
                 *place + ShapePoint(-half, 0)};
        const ShapeRect view(0, 0, rect.getWidth(), rect.getHeight());
        addStroke(shapes_, frame, {static_cast<float>(std::max(2.0, edge / 12.0)) + 2.0f, 0xc0000000, true}, view);
        addStroke(shapes_, frame, {static_cast<float>(std::max(2.0, edge / 12.0)), trafficColor, true}, view);
    }
    drawer_->setViewPort(rect);
    drawer_->draw(shapes_);
    drawer_->resetViewPort();
    if (!font)
        return;
    const RimmedLetters rimmed(*font);
    for (size_t i = 0; i < targets_.size(); ++i) {
        if (!seen[i])
            continue;
        wchar_t digits[16] = L"--";
        if (targets_[i].isAltitudeKnown)
            std::swprintf(digits, 16, L"%+d",
                          roundHalfAway(targets_[i].aboveMetres / (metric ? 10.0 : 100.0 * MetresPerFoot)));
        texts_[i].set(font, digits, irr::video::SColor(trafficColor));
        const auto height = static_cast<float>(std::max(texts_[i].getDimension().Height, 1u));
        const float scale = static_cast<float>(std::max(textShare * edge, leastTextHeight)) / height;
        const double below = targets_[i].aboveMetres < 0.0 ? 1.0 : -1.0;
        texts_[i].drawRotated(
            rect,
            {static_cast<float>(places[i].X),
             static_cast<float>(places[i].Y +
                                below * (0.55 * edge + 0.4 * std::max(textShare * edge, leastTextHeight)))},
            {scale, scale}, 0.0f);
    }
}

} // namespace skyvane
