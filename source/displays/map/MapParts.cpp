#include "displays/map/MapParts.h"

#include "chart/areas/AreaLeaf.h"
#include "chart/areas/AreaNode.h"
#include "chart/geodesy/Angles.h"
#include "chart/store/IChart.h"
#include "core/Context.h"
#include "core/log/Logger.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/IChartElementRenderer.h"
#include "displays/map/Map2D.h"
#include "displays/map/MapActions.h"
#include "sensors/SensorManager.h"

#include <GL/gl.h>
#include <cmath>
#include <cstring>

namespace skyvane {
namespace {

const irr::video::SColor groundColor(0xff518949);
const irr::video::SColor clearGroundColor(0x10518949);
const irr::video::SColor separatorColor(0x80000000);

constexpr double tileSeconds = 0.03;
constexpr double directSeconds = 300.0;
constexpr double uprightDegrees = 30.0;
constexpr double altitudeStepMetres = 76.2;
constexpr double altitudeArea = 15.0;
constexpr double farAboveMetres = 100000.0;
constexpr int liveProcedures = 7;
constexpr int softwareLargestEdge = 2048;
/// Symbols reach into the panel from that far beyond its edge.
constexpr double marginPixels = 64.0;
constexpr float crossShare = 0.05929275f; // of the screen's unit
/// A set that is made faster than that needs no words.
constexpr double quietSeconds = 0.25;

int largestTextureEdge() {
    GLint edge = softwareLargestEdge;
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &edge);
    const auto* renderer = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    const bool isSoftware = renderer && (std::strstr(renderer, "llvmpipe") || std::strstr(renderer, "softpipe"));
    return isSoftware ? std::min(edge, softwareLargestEdge) : edge;
}

} // namespace

MapParts::MapParts(Map2D& owner, MapSettings& given, TileWriters& writers)
    : map(owner), context(owner.getContext()), settings(given), switches(given.switches), images(context), canvas(view),
      contents(owner), tiles(context, &owner, writers), labels(owner, view), background(context->getDrawer()),
      terrain(context, &owner, images.terrainGradient.get()), procedures(owner, images), traffic(owner, view, images),
      aircraft(owner, view, images), controls(owner, view, images), selection(owner, view, contents), buttons(context),
      drawer_(context->getDrawer()) {}

MapParts::~MapParts() = default;

bool MapParts::areContentsShown() const {
    return view.getViewArea() <= static_cast<double>(settings.maxElementDrawArea);
}

void MapParts::render(const irr::core::rect<int>& rect) {
    if (rect.getWidth() < 8 || rect.getHeight() < 8)
        return;
    irr::video::IVideoDriver* driver = drawer_->getDevice()->getVideoDriver();
    const bool mipMaps = driver->getTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS);
    driver->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, false);
    prepareView(rect);
    for (IChartElementRenderer* renderer : contents.getRenderers())
        if (renderer && renderer->OnFrame2D())
            timer.markDirty();
    if (areTargetsUsed())
        drawTiles();
    else
        drawDirectly();
    drawLabels();
    traffic.draw(rect, settings.trafficFilterAlt);
    drawer_->setViewPort(rect);
    drawMarkedPlace();
    aircraft.draw(readings, settings);
    if (areTargetsUsed() && areContentsShown() && !tiles.isComplete() && Secs() - setStart_ > quietSeconds)
        controls.drawDrawingBox(rect);
    controls.draw(rect, readings, gestures);
    updateButtons();
    drawer_->drawFilledRect(irr::core::rect<int>(0, 0, 1, rect.getHeight()), separatorColor);
    drawer_->drawFilledRect(irr::core::rect<int>(rect.getWidth() - 1, 0, rect.getWidth(), rect.getHeight()),
                            separatorColor);
    drawer_->resetViewPort();
    driver->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, mipMaps);
}

void MapParts::prepareView(const irr::core::rect<int>& rect) {
    const ScreenMetrics& metrics = context->getScreenMetrics();
    const bool isNewSize = rect.getSize() != rect_.getSize();
    rect_ = rect;
    view.setPanel({rect.getWidth(), rect.getHeight(), static_cast<int>(metrics.width), static_cast<int>(metrics.height),
                   metrics.buttonHeight});
    readings.update(*context->getSensorManager());
    view.setAircraft(readings.position, readings.headingDegrees);
    // With tiles the scale stays as they were drawn, so that they are shifted by whole pixels.
    if (isNewSize || !areTargetsUsed() || !areContentsShown())
        view.calculateResolution();
    view.calculateViewPort();
    gestures.setPlaces(controls.places());
    canvas.setPanelBox(view.getReach(marginPixels));
    if (isNewSize && areTargetsUsed())
        createTiles();
}

void MapParts::createTiles() {
    const ScreenMetrics& metrics = context->getScreenMetrics();
    const TileShape shape = chooseTileShape(rect_.getWidth(), rect_.getHeight(), static_cast<int>(metrics.width),
                                            static_cast<int>(metrics.height), largestTextureEdge());
    const bool isAble = drawer_->getDevice()->getVideoDriver()->queryFeature(irr::video::EVDF_RENDER_TO_TARGET) &&
                        drawer_->getDevice()->getVideoDriver()->queryFeature(irr::video::EVDF_FRAMEBUFFER_OBJECT);
    targetsFailed_ = !isAble || !tiles.create(shape, context->getPanelManager()->getCurrentPage());
    if (targetsFailed_)
        logText("No FBOs supported, Rendering may be slow...\n");
    timer.markDirty();
}

/// Fill, scanned charts and terrain, in the panel's viewport.
void MapParts::drawGround() {
    const bool hasTerrain = switches.terrainEnable;
    if (hasTerrain && view.getMode() != MapMode::Dragging)
        terrain.requestIfNeeded(view);
    // From an altitude that nobody knows no ground can be told to be near; the map says so in words.
    const double altitude = std::isfinite(map.getAltitude()) ? map.getAltitude() : farAboveMetres;
    // Under opaque charts for where they end; over them it only warns.
    const bool isBelow = hasTerrain && !settings.transparency;
    if (isBelow)
        terrain.draw(view, altitude, true);
    const auto alpha = static_cast<irr::u8>(settings.transparency ? settings.transpval : 255);
    const bool isChartDrawn = background.draw(map.getChart(), view, settings.bgType, alpha);
    if (hasTerrain && (isChartDrawn || !isBelow))
        terrain.draw(view, altitude, !isChartDrawn);
}

void MapParts::drawDirectly() {
    drawer_->setViewPort(rect_);
    drawer_->drawFilledRect(irr::core::rect<int>(0, 0, rect_.getWidth(), rect_.getHeight()),
                            settings.transparency ? clearGroundColor : groundColor);
    drawGround();
    drawnOnce.clear();
    labels.beginSet();
    contents.prepareSet();
    contents.start(canvas.getDrawnBox(false), false, !switches.chartElements || !areContentsShown());
    contents.proceed(directSeconds);
    contents.finish();
    procedures.drawAllProcedures(false, 0);
    labels.finishFrame();
    drawer_->flush();
}

void MapParts::drawTiles() {
    rebuildWhenDue();
    if (tiles.isFilling() && tiles.proceed(*this, tileSeconds))
        labels.finishSet();
    drawer_->setViewPort(rect_);
    drawer_->drawFilledRect(irr::core::rect<int>(0, 0, rect_.getWidth(), rect_.getHeight()),
                            settings.transparency ? clearGroundColor : groundColor);
    drawGround();
    const auto alpha = static_cast<irr::u8>(settings.transparency ? settings.transpval : 255);
    if (areContentsShown())
        tiles.draw(view, alpha);
    if (!tiles.isComplete() || tiles.isFilling() || timer.isDirty() || !areContentsShown())
        procedures.drawAllProcedures(false, liveProcedures);
}

void MapParts::rebuildWhenDue() {
    // Symbols in tiles stand upright for the track that was up when they were drawn.
    const bool isTurned = std::fabs(AngleDiff(view.getTopTrack(), setTrack_)) > uprightDegrees;
    if (hasAltitudeChanged() || (isTurned && !tiles.isFilling()))
        timer.markDirty();
    const RebuildTimer::Situation situation{view.getViewArea(), static_cast<double>(settings.maxElementDrawArea),
                                            gestures.isPinching(),
                                            tiles.covers(view) && (tiles.isFilling() || tiles.isComplete())};
    if (timer.isDue(Secs(), situation))
        beginSet();
}

void MapParts::beginSet() {
    timer.begin(Secs(), view.getViewArea());
    view.calculateResolution();
    view.calculateViewPort();
    contents.abort();
    drawnOnce.clear();
    labels.beginSet();
    checkedAltitude_ = map.getAltitude();
    setTrack_ = view.getTopTrack();
    if (!tiles.isFilling())
        setStart_ = Secs();
    tiles.begin(view);
    contents.prepareSet();
}

void MapParts::beginTile(const MapBox& box, const MapBox& drawnBox, int edge) {
    canvas.setTile(box, drawnBox, edge);
    contents.start(drawnBox, true, !switches.chartElements);
}

bool MapParts::proceedTile(double seconds) {
    if (!contents.proceed(seconds))
        return false;
    contents.finish();
    procedures.drawAllProcedures(true, 0);
    return true;
}

bool MapParts::hasAltitudeChanged() {
    if (view.getViewArea() > altitudeArea || tiles.isFilling() || !tiles.isComplete() || !switches.chartElements)
        return false;
    const double altitude = map.getAltitude(), before = checkedAltitude_;
    const bool isKnown = std::isfinite(altitude), wasKnown = std::isfinite(before);
    if (isKnown == wasKnown && !(std::fabs(altitude - before) > altitudeStepMetres))
        return false;
    checkedAltitude_ = altitude;
    return isKnown != wasKnown || checkChange(before, altitude);
}

/// Whether any element of the tiles looks another way at the other altitude.
bool MapParts::checkChange(double fromMetres, double toMetres) {
    IChart* chart = map.getChart();
    if (!chart)
        return false;
    const MapBox& box = tiles.getGrid().getBox();
    const ChartPosition nw = box.getNW(), se = box.getSE();
    for (const int number : chart->getLeafesFromAreaList(chart->getBestFittingAreaList(nw, se, 1.0))) {
        const IArea* area = chart->getArea(number);
        const AreaLeaf* leaf = area ? area->asLeaf() : nullptr;
        for (size_t i = 0; leaf && leaf->isSane() && i < leaf->getElements().size(); ++i) {
            char bytes[AreaLeaf::BytesPerElement];
            std::memcpy(bytes, &leaf->getStaticBytes()[AreaLeaf::BytesPerElement * i], sizeof bytes);
            IChartElementRenderer* renderer = contents.getRenderer(bytes[0] & 0x3f);
            if (!renderer || !renderer->may2DMapPotentiallyChange(&map, bytes, fromMetres, toMetres))
                continue;
            IChartElement* element = chart->getChartElement(leaf->getElements()[i]);
            if (element && renderer->will2DMapChange(&map, element, fromMetres, toMetres))
                return true;
        }
    }
    return false;
}

void MapParts::drawLabels() {
    const bool isShown = areContentsShown() && switches.chartElements && (!areTargetsUsed() || tiles.isComplete());
    if (!isShown)
        return;
    labels.update();
    labels.draw(rect_, controls.getPlates());
    drawer_->setViewPort(rect_);
}

/// The cross, and what lies under it.
void MapParts::drawMarkedPlace() {
    if (isFollowing(view.getMode()))
        return;
    selection.update();
    selection.draw();
    const auto edge = static_cast<int>(std::lround(crossShare * map.getScreenUnit()));
    const bool isSelected = selection.getIndex() != MapSelection::None;
    drawer_->Draw(isSelected ? images.crossGreen.get() : images.cross.get(), toPixel(view.getPivot()), {edge, edge},
                  0.0f, {0.5f, 0.5f});
    drawer_->flush();
}

void MapParts::updateButtons() {
    if (isFollowing(view.getMode()))
        return buttons.hide();
    MapButtons::State state;
    state.hasSeveral = selection.hasSeveral();
    state.areProceduresPossible = areProceduresPossible(*context, selection.getElement());
    buttons.show(rect_, state);
}

bool MapParts::zoomTo(double zoom) {
    if (!view.setZoom(zoom))
        return false;
    view.calculateResolution();
    view.calculateViewPort();
    timer.delayFrom(Secs(), view.getViewArea());
    return true;
}

void MapParts::endZoom() {
    terrain.requestAnew();
    timer.markDirty();
}

void MapParts::onPageChange() {
    gestures.reset();
    buttons.hide();
    if (view.getMode() == MapMode::Dragging)
        view.setMode(MapMode::Marker);
}

} // namespace skyvane
