#include "displays/vision/Map3D.h"

#include "core/Context.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "displays/gauges/AttitudeGauge.h"
#include "displays/visionmath/ScenePlaces.h"
#include "procedures/ProcedureManager.h"

#include <cmath>

namespace skyvane {
namespace {

constexpr int smallestEdge = 32;
const irr::video::SColor darkness(0xff0b0e12);
const irr::video::SColor good(0xffffffff), doubtful(0xffffe11f), failed(0xfff01c28);

} // namespace

Map3D::Map3D(Context* context, const VisionSettings& settings, std::string section)
    : IPanel(context), settings_(settings), section_(std::move(section)), effective_(settings.switches),
      drawer_(context->getDrawer()), stage_(context->getIrrlichtDevice()->getVideoDriver()), sky_(context),
      terrain_(context), highway_(context), elements_(context), labels_(context), aircraft_(context, "media/plane.b3d"),
      traffic_(context), symbols_(context), flags_(context), bars_(context, settings), buttons_(context) {
    constexpr double planeWidths = 50.0;
    context->getProcedureManager()->setHighwaySpacing(planeWidths * settings.planeWidthMetres);
}

void Map3D::OnPageChange() {
    finger_.cancel();
    pinch_ = PinchTracker();
    buttons_.hide(); // which nobody would do on another page
}

void Map3D::OnHideGUI() {
    buttons_.hide();
}

void Map3D::applyOptimizedSettings(OptimizedSettings settings) {
    preset_ = settings;
    effective_ = applyPreset(settings_.switches, settings);
    elements_.invalidate();
}

/// Without one of them nobody knows where the ground is that would be seen.
bool Map3D::isPlaceKnown() const {
    return readings_.trust.isPlaceShown() && isValueShown(readings_.trust.heading);
}

void Map3D::updatePose() {
    const double altitude = std::isfinite(readings_.altitudeMetres) ? readings_.altitudeMetres : 0.0;
    shownHeight_ = calcShownHeight(altitude, readings_.groundMetres);
    const ViewPose::Vector place(0.0, shownHeight_, 0.0);
    pose_ = ViewPose();
    firstPerson_ = orbit_.isFirstPerson() && readings_.hasAttitude && lookAlong(readings_.attitude, pose_);
    pose_.position = place;
    if (!firstPerson_)
        pose_ = lookAt(place, readings_.headingDegrees + orbit_.getYawDegrees(), orbit_.getHeightDegrees(),
                       orbit_.getChaseMetres());
}

irr::video::SColor Map3D::tint() const {
    if (readings_.trust.isAnyFailed())
        return failed;
    return readings_.trust.isAnyDoubtful() ? doubtful : good;
}

void Map3D::render(irr::core::rect<int> rect) {
    const irr::core::dimension2d<irr::u32> target = stage_.getDriver()->getScreenSize();
    rect_ = rect;
    irr::core::rect<int> seen = rect;
    seen.clipAgainst({0, 0, static_cast<int>(target.Width), static_cast<int>(target.Height)});
    if (seen.getWidth() < smallestEdge || seen.getHeight() < smallestEdge)
        return;
    rect_ = seen;
    readings_ = readVision(*context_);
    if (readings_.trust.isPlaceShown())
        velocity_.update(readings_.position, Secs());
    readBars(*context_, readings_, barReadings_);
    updatePose();
    drawer_->flush();
    if (firstPerson_ && !readings_.trust.isAttitudeShown())
        drawer_->drawFilledRect(seen, darkness);
    else
        renderScene(seen);
    renderGlass();
    renderBars();
    buttons_.update(seen);
}

void Map3D::renderScene(const irr::core::rect<int>& seen) {
    stage_.begin(pose_, seen);
    if (isPlaceKnown() && effective_.terrain)
        terrain_.draw(stage_, readings_.position, shownHeight_);
    sky_.draw(stage_, settings_.useSkyBox);
    if (isPlaceKnown()) {
        elements_.update(*this, terrain_, readings_.position, shownHeight_, static_cast<double>(settings_.sightMetres));
        elements_.draw(stage_, readings_.position);
        highway_.draw(stage_, readings_.position);
        traffic_.drawMeshes(stage_, readings_.position, shownHeight_, settings_.sightMetres);
    }
    if (!firstPerson_)
        renderAircraft();
    stage_.end();
}

/// Without an attitude it flies level along its heading.
void Map3D::renderAircraft() {
    const Matrix3x3 level = createYawMatrix(readings_.headingDegrees / 57.29577951308232);
    const bool shown = readings_.hasAttitude && readings_.trust.isAttitudeShown();
    aircraft_.draw(stage_, {0.0, shownHeight_, 0.0}, shown ? readings_.attitude : level, settings_.planeWidthMetres,
                   tint());
}

void Map3D::renderGlass() {
    SymbolView::Scene scene;
    scene.pose = pose_;
    scene.rect = rect_;
    scene.free = bars_.getFreeRect(rect_);
    scene.isDoubtful = readings_.trust.isAnyDoubtful();
    scene.hasBankScale = settings_.renderBank;
    if (isPlaceKnown() && !(firstPerson_ && !readings_.trust.isAttitudeShown())) {
        labels_.draw(stage_, elements_, readings_.position, rect_, scene.free);
        traffic_.drawSymbols(stage_, rect_);
    }
    if (firstPerson_ && readings_.trust.isAttitudeShown()) {
        const AttitudePose attitude = calcAttitudePose(readings_.attitude);
        scene.pitchDegrees = attitude.pitchDegrees;
        scene.bankDegrees = attitude.rollDegrees;
        if (isValueShown(barReadings_.sideways.flag))
            scene.sideways = barReadings_.sideways.value;
        const auto velocity = velocity_.get();
        if (velocity && isPlaceKnown() && isValueShown(barReadings_.verticalSpeedMetres.flag))
            scene.velocity = ViewPose::Vector(velocity->X, barReadings_.verticalSpeedMetres.value, velocity->Y);
        symbols_.draw(scene);
    }
    const bool attitudeStandsIn = firstPerson_ && !readings_.trust.isAttitudeShown();
    const bool incomplete = effective_.terrain && isPlaceKnown() && terrain_.isIncomplete(readings_.position);
    flags_.draw(rect_, scene.free, bars_.getNextFixRect(rect_), readings_.trust, attitudeStandsIn, incomplete);
}

void Map3D::renderBars() {
    const auto velocity = velocity_.get();
    barReadings_.trackDegrees.reset();
    if (velocity && readings_.trust.isPlaceShown())
        barReadings_.trackDegrees = std::atan2(velocity->X, velocity->Y) * 57.29577951308232;
    drawer_->flush();
    bars_.render(rect_, barReadings_);
    drawer_->flush();
}

} // namespace skyvane
