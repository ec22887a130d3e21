#include "displays/map/Map2D.h"

#include "chart/store/IChart.h"
#include "core/Context.h"
#include "core/geometry/LineClipping.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/MapParts.h"
#include "gui/font/FlexibleFont.h"
#include "procedures/ProcedureManager.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double standardShare = 0.79057;
constexpr float symbolShare = 0.0395285f;
/// Above it only important labels are shown.
constexpr double labelArea = 6.0;
constexpr unsigned backgroundBrightness = 4; // one part of the text's
constexpr unsigned backgroundAlpha = 0xc0;
constexpr float labelAngle = 55.0f;
constexpr float labelSize = 0.55f;

irr::video::SColor darkened(irr::video::SColor color) {
    return irr::video::SColor(backgroundAlpha, color.getRed() / backgroundBrightness,
                              color.getGreen() / backgroundBrightness, color.getBlue() / backgroundBrightness);
}

} // namespace

Map2D::Map2D(Context* context, const MapSettings& settings, std::string section, TileWriters& writers)
    : IPanel(context), settings_(settings), section_(std::move(section)),
      parts_(std::make_unique<MapParts>(*this, settings_, writers)) {}

Map2D::~Map2D() = default;

// --- Where things are ---

Map2D::Point Map2D::calcScreenCoordinates(double longitude, double latitude, bool intoRTT) const {
    return toPixel(parts_->canvas.toPixels(ChartPosition(longitude, latitude), intoRTT));
}

Map2D::PointF Map2D::calcScreenCoordinatesf32(double longitude, double latitude, bool intoRTT) const {
    const auto point = parts_->canvas.toPixels(ChartPosition(longitude, latitude), intoRTT);
    return PointF(static_cast<float>(point.X), static_cast<float>(point.Y));
}

ChartPosition Map2D::calcChartPositionFromScreenCoordinates(const PointF& point, bool intoRTT) const {
    return parts_->canvas.toChart({static_cast<double>(point.X), static_cast<double>(point.Y)}, intoRTT);
}

bool Map2D::isInside(const ChartPosition& position, double marginX, double marginY, bool intoRTT) const {
    const auto point = parts_->canvas.toPixels(position, intoRTT);
    const irr::core::dimension2d<int> size = parts_->canvas.getSize(intoRTT);
    return point.X >= -marginX && point.Y >= -marginY && point.X <= size.Width + marginX &&
           point.Y <= size.Height + marginY;
}

const MapBox& Map2D::getDrawnBox(bool intoRTT) const {
    return parts_->canvas.getDrawnBox(intoRTT);
}

irr::core::dimension2d<int> Map2D::getDrawnSize(bool intoRTT) const {
    return parts_->canvas.getSize(intoRTT);
}

double Map2D::getMetresPerPixel() const {
    return parts_->view.getMetresPerPixel();
}

double Map2D::getViewArea() const {
    return parts_->view.getViewArea();
}

// --- Drawing ---

void Map2D::drawSingleMapElement(int index, irr::video::ITexture* texture, const ChartPosition& position,
                                 const std::string& label, irr::video::SColor color, bool intoRTT,
                                 const irr::core::dimension2d<int>* size, float scale, bool isImportant) {
    const auto edge = static_cast<int>(std::lround(getElementSizePx() * scale));
    const irr::core::dimension2d<int> drawn = size ? *size : irr::core::dimension2d<int>(edge, edge);
    if (!isInside(position, drawn.Width, drawn.Height, intoRTT))
        return;
    getDrawer()->setColor(color);
    getDrawer()->Draw(texture, calcScreenCoordinates(position.longitude, position.latitude, intoRTT), drawn, 0.0f,
                      {0.5f, 0.5f});
    getDrawer()->setColor(irr::video::SColor(0xffffffff));
    if (label.empty() || handleOneTimeRenderLock(index))
        return;
    addRGDText(index, label, position, static_cast<double>(labelAngle), irr::video::SColor(0xffffffff),
               labelSize * scale,
               irr::core::dimension2d<float>(static_cast<float>(drawn.Width), static_cast<float>(drawn.Height)),
               std::nullopt, isImportant);
}

void Map2D::drawLine(const irr::core::line2d<float>& line, irr::video::ITexture* texture, irr::video::SColor color,
                     float width, bool intoRTT) {
    const irr::core::dimension2d<int> size = getDrawnSize(intoRTT);
    const int margin = static_cast<int>(width) + 2;
    Point from = toPixel({static_cast<double>(line.start.X), static_cast<double>(line.start.Y)});
    Point to = toPixel({static_cast<double>(line.end.X), static_cast<double>(line.end.Y)});
    if (!clipline(from.X, from.Y, to.X, to.Y, {-margin, -margin, size.Width + margin, size.Height + margin}))
        return;
    getDrawer()->setColor(color);
    getDrawer()->DrawLine(texture ? texture : getWhiteTexture(), from, to,
                          std::max(1, static_cast<int>(std::lround(width))));
    getDrawer()->setColor(irr::video::SColor(0xffffffff));
}

void Map2D::drawText(const std::string& text, const PointF& middle, irr::video::SColor color, float scale,
                     float rotationDegrees, bool intoRTT) {
    FlexibleFont* font = context_->getFlexibleFont();
    if (!font || text.empty())
        return;
    const irr::core::dimension2d<int> size = getDrawnSize(intoRTT);
    const irr::core::vector2d<int> corner =
        intoRTT ? irr::core::vector2d<int>(0, 0) : parts_->getRect().UpperLeftCorner;
    chartText_.set(font, irr::core::stringw(text.c_str()).c_str(), color);
    getDrawer()->flush();
    chartText_.drawRotated(irr::core::rect<int>(corner, size), middle, font->getDefaultScale() * scale,
                           rotationDegrees);
    getDrawer()->setViewPort(irr::core::rect<int>(corner, size));
}

irr::video::ITexture* Map2D::getWhiteTexture() const {
    return parts_->images.white.get();
}

// --- Labels ---

void Map2D::addRGDText(int index, const std::string& text, const ChartPosition& position, double angleDegrees,
                       irr::video::SColor color, float size, const irr::core::dimension2d<float>& symbolSize,
                       std::optional<irr::video::SColor> background, bool isImportant) {
    if (!getSwitches().descriptions || text.empty() || (!isImportant && getViewArea() > labelArea))
        return;
    RGDContent content = parts_->labels.makeText(text, color, size, background.value_or(darkened(color)));
    content.id = index;
    content.anchor = position;
    content.angleDegrees = angleDegrees;
    content.symbolWidth = symbolSize.Width;
    content.symbolHeight = symbolSize.Height;
    content.isImportant = isImportant;
    parts_->labels.add(std::move(content));
}

void Map2D::addRGDCallback(IRGDCallback* callback, long id, const ChartPosition& position, double angleDegrees,
                           const irr::core::dimension2d<float>& size, const irr::core::dimension2d<float>& symbolSize,
                           bool isImportant) {
    if (!callback || !getSwitches().descriptions || (!isImportant && getViewArea() > labelArea))
        return;
    RGDContent content;
    content.id = id;
    content.callback = callback;
    content.anchor = position;
    content.angleDegrees = angleDegrees;
    content.width = size.Width;
    content.height = size.Height;
    content.symbolWidth = symbolSize.Width;
    content.symbolHeight = symbolSize.Height;
    content.isImportant = isImportant;
    parts_->labels.add(std::move(content));
}

irr::core::rect<int> Map2D::calcFinalRGDContentRect(const RGDContent& content) const {
    return parts_->labels.calcRect(content);
}

bool Map2D::handleOneTimeRenderLock(int index) {
    return !parts_->drawnOnce.insert(index);
}

// --- The flight and the settings ---

ChartPosition Map2D::getPosition() const {
    return parts_->view.getAircraft();
}

double Map2D::getAltitude() const {
    return parts_->readings.altitudeMetres;
}

double Map2D::getTopTrack() const {
    return parts_->view.getTopTrack();
}

const MapSwitches& Map2D::getSwitches() const {
    return parts_->switches;
}

bool Map2D::isMetric() const {
    return context_->getPanelManager()->isMetric();
}

bool Map2D::isProcedureTarget(int index) const {
    return context_->getProcedureManager()->isProcedureTarget(index);
}

float Map2D::getScreenUnit() const {
    return static_cast<float>(std::sqrt(static_cast<double>(context_->getScreenMetrics().pixelCount)));
}

float Map2D::getSymbolUnit() const {
    return getScreenUnit() * symbolShare;
}

float Map2D::getElementSizePx() const {
    return static_cast<float>(settings_.mapElementSize * standardShare) * getScreenUnit();
}

bool Map2D::isMouseOverLine(const Point& mouse, const PointF& from, const PointF& to, float reach) const {
    const PointF place(static_cast<float>(mouse.X), static_cast<float>(mouse.Y));
    const PointF along = to - from;
    const float length = along.getLengthSQ();
    const float share = length > 0.0f ? std::clamp((place - from).dotProduct(along) / length, 0.0f, 1.0f) : 0.0f;
    const float finger = reach > 0.0f ? reach : 0.5f * getSymbolUnit();
    return place.getDistanceFrom(from + along * share) <= finger;
}

Drawer2D* Map2D::getDrawer() const {
    return context_->getDrawer();
}

IChart* Map2D::getChart() const {
    return context_->getPanelManager()->getChart();
}

// --- IPanel ---

void Map2D::render(irr::core::rect<int> rect) {
    parts_->render(rect);
}

void Map2D::OnPageChange() {
    parts_->onPageChange();
}

void Map2D::OnChartChanged() {
    parts_->terrain.requestAnew();
    parts_->selection.lookAgain();
    parts_->markDirty();
}

void Map2D::OnProcedureChanged() {
    parts_->selection.lookAgain();
    parts_->markDirty();
}

void Map2D::OnFISDataChanged(bool changed) {
    if (changed)
        parts_->markDirty();
}

void Map2D::OnHideGUI() {
    parts_->buttons.hide();
}

void Map2D::OnTerrainImageResult(const ChartPosition& nw, const ChartPosition& se, irr::video::IImage* image,
                                 bool undefined, float minimum, float average, float maximum) {
    parts_->terrain.onResult(nw, se, image, undefined, minimum, average, maximum);
}

void Map2D::applyOptimizedSettings(OptimizedSettings settings) {
    preset_ = settings;
    parts_->switches = applyPreset(settings_.switches, settings);
    parts_->selection.lookAgain();
    parts_->markDirty();
}

} // namespace skyvane
