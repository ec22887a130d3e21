#include "displays/information/SideViewPanel.h"

#include "chart/geodesy/EarthConstants.h"
#include "core/Context.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/gauges/SegmentFormat.h"
#include "displays/instruments/TargetName.h"
#include "displays/map/elements/AirspaceRenderer.h"
#include "procedures/ProcedureManager.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double searchSeconds = 0.02;
constexpr double aheadNauticalMiles = 20.0, aheadKilometres = 40.0;
constexpr int leastWidthForScale = 240, leastHeightForScale = 90;
constexpr double messageShare = 0.019; ///< Of the screen's unit.
constexpr double tenthMetres = 185.2;  ///< What a distance's last digit says, about.
constexpr uint32_t waitColor = 0xa0000000;
const irr::video::SColor separatorColor(0x80000000), white(0xffffffff);

ShapeRect toShape(const irr::core::rect<int>& rect) {
    return ShapeRect(rect.UpperLeftCorner.X, rect.UpperLeftCorner.Y, rect.LowerRightCorner.X, rect.LowerRightCorner.Y);
}

} // namespace

SideViewPanel::SideViewPanel(Context* context, const SideViewSettings& settings)
    : IPanel(context), settings_(settings), buttons_(context), words_(context), measure_(words_),
      stillTools_(still_, measure_), movingTools_(moving_, measure_) {
    scene_.stops = &stops_;
    scene_.airspaces = &airspaces_;
}

SideViewPanel::~SideViewPanel() = default;

void SideViewPanel::OnChartChanged() {
    // Names and airspaces are those of the former charts.
    profileNumber_.reset();
    airspaces_.clear();
    ++contents_;
}

bool SideViewPanel::Key::operator==(const Key& other) const {
    return rect == other.rect && buttons == other.buttons && aircraft == other.aircraft && altitude == other.altitude &&
           notes == other.notes && top == other.top && first == other.first && shown == other.shown &&
           profile == other.profile && contents == other.contents && selected == other.selected &&
           selectedTenths == other.selectedTenths && metric == other.metric && font == other.font;
}

irr::core::vector2d<int> SideViewPanel::transfromToScreenCoords(const PointCall* call, unsigned index,
                                                                double height) const {
    SideAxes axes = scene_.axes;
    axes.points = call->positions.size();
    axes.lowest = static_cast<double>(call->minimum);
    const ShapePoint place = axes.toScreen(static_cast<double>(index), height);
    return {static_cast<int>(std::lround(place.X)), static_cast<int>(std::lround(place.Y))};
}

void SideViewPanel::render(irr::core::rect<int> rect) {
    if (rect.getWidth() < 1 || rect.getHeight() < 1)
        return;
    rect_ = rect;
    moving_.clear();
    drawBackground();
    ProcedureManager& procedures = *context_->getProcedureManager();
    if (procedures.getCurrentProcedure()->getType() == IProcedure::None) {
        OnHideGUI();
        profileNumber_.reset();
        drawMessage(L"SideView", false);
        context_->getPanelManager()->drawPanelSeperator(rect, separatorColor);
        return;
    }
    showButtons();
    RouteProfile* profile = procedures.getLastPointCall();
    if (profile && profile->isFilled()) {
        takeProfile(*profile);
        searchAirspaces(*profile);
        updateScene(*profile);
        drawScene();
        if (search_ == Search::Running)
            drawMessage(L"Drawing...", true);
    } else {
        profileNumber_.reset();
        drawMessage(explainMissingProfile(), true);
    }
    context_->getPanelManager()->drawPanelSeperator(rect, separatorColor);
}

void SideViewPanel::takeProfile(RouteProfile& profile) {
    const bool metric = context_->getPanelManager()->isMetric();
    if (profileNumber_ == profile.number && metric == scene_.metric)
        return;
    if (profileNumber_ != profile.number) {
        finder_.reset();
        lastIndex_ = 0.0;
    }
    profileNumber_ = profile.number;
    scene_.metric = metric;
    scene_.selected = -1;
    stops_ = listSideStops(profile, metric, [this](const ProcedureLocation& location) {
        const ShortText name = nameOfTarget(*context_, location);
        return name.view().empty() && location.type != ProcedureLocation::None ? ShortText(L"User Position") : name;
    });
    airspaces_.clear();
    search_ = showsAirspaces_ ? Search::Wanted : Search::Off;
    ++contents_;
}

void SideViewPanel::searchAirspaces(RouteProfile& profile) {
    if (search_ != Search::Wanted && search_ != Search::Running)
        return;
    IChartElementSource* charts = context_->getCharts();
    if (!charts) {
        search_ = Search::Done;
        return;
    }
    if (search_ == Search::Wanted) {
        profile.prepareAirspaceFill(charts);
        search_ = Search::Running;
    }
    if (!profile.continueAirspaceFill(searchSeconds))
        return;
    profile.finishAirspaceFill();
    search_ = Search::Done;
    const PanelManager& panels = *context_->getPanelManager();
    airspaces_ = collectSideAirspaces(
        profile, *charts, {settings_.maxDistMetres, scene_.metric, [&panels](const std::string& airspaceClass) {
                               return AirspaceRenderer::isIrrelevant(panels, airspaceClass);
                           }});
    ++contents_;
}

void SideViewPanel::updateScene(const RouteProfile& profile) {
    const ScreenMetrics& metrics = context_->getScreenMetrics();
    scene_.profile = &profile;
    scene_.readings = readSide(*context_->getSensorManager());
    scene_.place.reset();
    if (scene_.readings.position)
        scene_.place = finder_.find(profile.positions, *scene_.readings.position);
    if (scene_.place)
        lastIndex_ = scene_.place->index;
    scene_.isAhead = looksAhead_;
    scene_.textHeight =
        sideTextHeight(rect_, std::sqrt(static_cast<double>(metrics.width) * static_cast<double>(metrics.height)));
    updateAxes(profile);
    const bool hasScale = rect_.getWidth() >= leastWidthForScale && rect_.getHeight() >= leastHeightForScale;
    scene_.scaleWidth = scene_.scaleHeight = 0.0;
    if (hasScale) {
        const double unit = scene_.metric ? 1.0 : MetresPerFoot;
        const ShortText widest = formatWhole(std::pow(10.0, std::ceil(std::log10(scene_.axes.top / unit + 1.0))) - 1.0);
        scene_.scaleWidth = measure_.measure(widest, scene_.textHeight) + 1.7 * scene_.textHeight;
        scene_.scaleHeight = 1.9 * scene_.textHeight;
    }
    scene_.buttons = toShape(buttons_.getShownRect());
    blockForFlight(scene_, measure_);
}

void SideViewPanel::updateAxes(const RouteProfile& profile) {
    SideRange::Heights heights;
    heights.lowestGround = static_cast<double>(profile.minimum);
    heights.highestGround = static_cast<double>(profile.maximum);
    if (!profile.pathAltitudes.empty())
        heights.highestCourse =
            static_cast<double>(*std::max_element(profile.pathAltitudes.begin(), profile.pathAltitudes.end()));
    if (scene_.readings.altitudeMetres)
        heights.own = *scene_.readings.altitudeMetres;
    range_.update(heights);
    SideAxes& axes = scene_.axes;
    axes.panel = toShape(rect_);
    axes.points = profile.positions.size();
    axes.stepMetres = axes.points > 1 ? profile.totalMetres / static_cast<double>(axes.points - 1) : 0.0;
    axes.lowest = heights.lowestGround;
    axes.top = range_.getTop();
    axes.first = 0.0;
    axes.shown = static_cast<double>(axes.points);
    if (!looksAhead_)
        return;
    const double length = scene_.metric ? 1000.0 * aheadKilometres : MetresPerNauticalMile * aheadNauticalMiles;
    const SideWindow window = lookAhead(axes.points, axes.stepMetres, lastIndex_, length);
    axes.first = window.first;
    axes.shown = window.shown;
}

SideViewPanel::Key SideViewPanel::makeKey() const {
    Key key;
    key.rect = rect_;
    key.buttons = buttons_.getShownRect();
    key.aircraft = scene_.aircraftBox;
    key.altitude = scene_.altitudeBox;
    key.notes = scene_.notesBox;
    key.top = scene_.axes.top;
    key.first = scene_.axes.first;
    key.shown = scene_.axes.shown;
    key.profile = profileNumber_.value_or(0);
    key.contents = contents_;
    key.selected = scene_.selected;
    if (scene_.selected >= 0)
        key.selectedTenths = static_cast<int>(
            std::lround(metresAhead(scene_, stops_[static_cast<size_t>(scene_.selected)].index) / tenthMetres));
    key.metric = scene_.metric;
    key.font = context_->getFlexibleFont();
    return key;
}

void SideViewPanel::rebuild() {
    ++rebuilds_;
    still_.clear();
    ShapeMesh& bands = still_.layers[BarCanvas::Ground].shapes;
    for (const SideAirspace& airspace : airspaces_)
        if (outlineSideAirspace(airspace, *scene_.profile, scene_.axes, upper_, lower_))
            AirspaceRenderer::renderSide(bands, *airspace.style, upper_, lower_, scene_.axes.panel);
    addSideGround(stillTools_, scene_);
    addSideCourse(stillTools_, scene_);
    addAltitudeScale(stillTools_, scene_);
    labels_.add(stillTools_, scene_);
}

void SideViewPanel::drawScene() {
    const Key key = makeKey();
    if (rebuilds_ == 0 || !(key == key_)) {
        key_ = key;
        rebuild();
    }
    drawLayer(still_, BarCanvas::Ground);
    if (!looksAhead_)
        drawTerrain();
    for (const BarCanvas::Level level : {BarCanvas::Scale, BarCanvas::Box, BarCanvas::Glass})
        drawLayer(still_, level);
    addDistanceScale(movingTools_, scene_);
    addSideFlight(movingTools_, scene_);
    drawMoving();
}

/// The picture's highest and lowest rows have the heights of the highest and lowest ground in their middles.
void SideViewPanel::drawTerrain() {
    irr::video::ITexture* texture = context_->getProcedureManager()->getSideTexture();
    if (!texture)
        return;
    const SideAxes& axes = scene_.axes;
    const auto highest = static_cast<double>(scene_.profile->maximum);
    const double range = std::max(1.0, highest - static_cast<double>(scene_.profile->minimum));
    const double top = axes.yOf(highest), bottom = axes.yOf(highest - range);
    const double half = 0.5 * (bottom - top) / (ProcedureManager::SideViewRows - 1);
    const auto pixel = [](double value) { return static_cast<int>(std::lround(value)); };
    Drawer2D* drawer = context_->getDrawer();
    drawer->resetViewPort();
    drawer->setColor(white);
    drawer->Draw(texture,
                 irr::core::rect<int>(pixel(axes.xOf(0.0)), pixel(top - half),
                                      pixel(axes.xOf(static_cast<double>(axes.points))), pixel(bottom + half)),
                 &rect_);
}

void SideViewPanel::drawMoving() {
    for (int level = 0; level < BarCanvas::levels; ++level)
        drawLayer(moving_, static_cast<BarCanvas::Level>(level));
    moving_.clear();
}

void SideViewPanel::drawLayer(const BarCanvas& canvas, BarCanvas::Level level) {
    const BarCanvas::Layer& layer = canvas.layers[level];
    Drawer2D* drawer = context_->getDrawer();
    if (!layer.shapes.isEmpty()) {
        const irr::core::dimension2du screen =
            context_->getIrrlichtDevice()->getVideoDriver()->getCurrentRenderTargetSize();
        irr::core::rect<int> seen = rect_;
        seen.clipAgainst({0, 0, static_cast<int>(screen.Width), static_cast<int>(screen.Height)});
        drawer->setViewPort(seen);
        drawer->draw(layer.shapes, Drawer2D::PointF(static_cast<float>(-seen.UpperLeftCorner.X),
                                                    static_cast<float>(-seen.UpperLeftCorner.Y)));
        drawer->resetViewPort();
    }
    words_.draw(layer.texts);
}

void SideViewPanel::drawBackground() {
    movingTools_.pen.shade(BarCanvas::Ground, toShape(rect_), SideColor::skyTop, SideColor::skyBottom);
    drawMoving();
}

void SideViewPanel::drawMessage(const wchar_t* words, bool inBox) {
    const ScreenMetrics& metrics = context_->getScreenMetrics();
    const double unit = std::sqrt(static_cast<double>(metrics.width) * static_cast<double>(metrics.height));
    BarText text;
    text.text = words;
    text.height = messageShare * unit;
    text.argb = SideColor::ink;
    text.most = 0.9 * rect_.getWidth();
    text.place = ShapePoint(middleX(toShape(rect_)), middleY(toShape(rect_)));
    if (inBox) {
        const double half = std::min(0.5 * text.most, 0.5 * measure_.measure(text.text, text.height)) + text.height;
        movingTools_.pen.rect(BarCanvas::Glass,
                              {text.place.X - half, text.place.Y - 1.4 * text.height, text.place.X + half,
                               text.place.Y + 1.4 * text.height},
                              waitColor);
    }
    movingTools_.pen.text(BarCanvas::Glass, text);
    drawMoving();
}

const wchar_t* SideViewPanel::explainMissingProfile() const {
    if (!context_->getPanelManager()->getTerrainManager())
        return L"No charts";
    const bool hasCourse = context_->getProcedureManager()->getCurrentProcedure()->getCourseList().size() > 1;
    return hasCourse || readSide(*context_->getSensorManager()).position ? L"Please wait..." : L"No position";
}

void SideViewPanel::showButtons() {
    SideViewButtons::State state;
    state.offersAirspaces = !showsAirspaces_;
    state.isAhead = looksAhead_;
    state.isFullScreen = context_->getPanelManager()->getFullScreenPanel() == this;
    buttons_.show(rect_, state);
}

} // namespace skyvane
