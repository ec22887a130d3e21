#include "displays/map/elements/MapDrawing.h"

#include "chart/geodesy/Angles.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/map/Map2D.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr double fingerShare = 0.35; ///< Of the shared unit of symbols.
constexpr double farPixels = 30000.0;
constexpr double linePixels = 64.0;
constexpr double farNavaid = 0.62;

Drawer2D::Position toPosition(const ShapePoint& point) {
    const auto whole = [](double value) {
        return static_cast<int>(std::lround(std::clamp(value, -farPixels, farPixels)));
    };
    return {whole(point.X), whole(point.Y)};
}

ShapePoint pixelsAt(const Map2D& map, double longitude, double latitude, bool intoRTT) {
    const irr::core::vector2d<float> point = map.calcScreenCoordinatesf32(longitude, latitude, intoRTT);
    return {point.X, point.Y};
}

} // namespace

MapAffine affineOf(const Map2D& map, bool intoRTT) {
    const MapBox& box = map.getDrawnBox(intoRTT);
    const double east = 0.25 * box.getWidth(), north = 0.25 * box.getHeight();
    MapAffine affine;
    affine.reference = box.getCentre();
    const double longitude = affine.reference.longitude, latitude = affine.reference.latitude;
    const auto slope = [&](double dx, double dy, double degrees) {
        const ShapePoint low = pixelsAt(map, longitude - dx, latitude - dy, intoRTT);
        const ShapePoint high = pixelsAt(map, longitude + dx, latitude + dy, intoRTT);
        return (high - low) / (2.0 * degrees);
    };
    affine.origin = pixelsAt(map, longitude, latitude, intoRTT);
    affine.east = slope(east, 0.0, east);
    affine.north = slope(0.0, north, north);
    return affine;
}

ShapeRect viewOf(const Map2D& map, bool intoRTT) {
    const irr::core::dimension2d<int> size = map.getDrawnSize(intoRTT);
    return {0.0, 0.0, static_cast<double>(size.Width), static_cast<double>(size.Height)};
}

float pixelsOf(const Map2D& map, double thousandths) {
    return static_cast<float>(thousandths * 0.001 * map.getScreenUnit());
}

MapFilter filterOf(const Map2D& map, int index) {
    return {map.getViewArea(), map.getSwitches(), map.isProcedureTarget(index)};
}

bool canSee(const MapAffine& affine, const PointBounds& bounds, const ShapeRect& view) {
    const ShapeRect wide(view.UpperLeftCorner - ShapePoint(linePixels, linePixels),
                         view.LowerRightCorner + ShapePoint(linePixels, linePixels));
    return bounds.isArea && affine.canSee(bounds.northWest, bounds.southEast, wide);
}

void drawTurnedSymbol(Map2D& map, const ElementSymbol& symbol, const ShapePoint& middle, double edge,
                      const SymbolColors& colors, double turnDegrees) {
    Drawer2D& drawer = *map.getDrawer();
    const int size = std::max(1, static_cast<int>(std::lround(edge)));
    const auto draw = [&](irr::video::ITexture* texture, irr::video::SColor color) {
        drawer.setColor(color);
        drawer.Draw(texture, toPosition(middle), {size, size}, static_cast<float>(turnDegrees), {0.5f, 0.5f});
    };
    if (symbol.halo)
        draw(symbol.halo, colors.halo);
    draw(symbol.shape, colors.shape);
    drawer.setColor(irr::video::SColor(0xffffffff));
}

void drawSymbol(Map2D& map, const ElementSymbol& symbol, const ShapePoint& middle, double edge,
                const SymbolColors& colors, bool intoRTT) {
    drawTurnedSymbol(map, symbol, middle, edge, colors, intoRTT ? -map.getTopTrack() : 0.0);
}

double navaidEdge(const Map2D& map) {
    return map.getElementSizePx() * (map.getViewArea() > largestFullLabelArea ? farNavaid : 1.0);
}

void drawSelectionRing(Map2D& map, const ShapePoint& middle, double edge) {
    ShapeMesh mesh;
    ShapePath ring;
    const double radius = 0.62 * edge + pixelsOf(map, 3.0);
    for (int i = 0; i < 48; ++i) {
        const double angle = i * 3.14159265358979 / 24.0;
        ring.push_back(middle + ShapePoint(std::cos(angle), std::sin(angle)) * radius);
    }
    const ShapeRect view(middle.X - 4.0 * edge, middle.Y - 4.0 * edge, middle.X + 4.0 * edge, middle.Y + 4.0 * edge);
    addStroke(mesh, ring, {pixelsOf(map, 5.0), 0xc0000000, true, 0.0f, 0.0f}, view);
    addStroke(mesh, ring, {pixelsOf(map, 2.6), selectionColor, true, 0.0f, 0.0f}, view);
    drawShapes(map, mesh);
}

void drawShapes(Map2D& map, ShapeMesh& mesh) {
    map.getDrawer()->draw(mesh);
    mesh.clear();
}

void addLabel(Map2D& map, int index, const ChartPosition& position, double symbolEdge, const ElementLabel& label) {
    if (label.text.empty() || map.handleOneTimeRenderLock(index))
        return;
    const auto edge = static_cast<float>(symbolEdge);
    map.addRGDText(index, label.text, position, label.angleDegrees, label.color, labelUnit * label.scale, {edge, edge},
                   label.background, label.isImportant);
}

bool isMouseOverSymbol(const Map2D& map, const ChartPosition& position, double edge,
                       const irr::core::vector2d<int>& mouse) {
    const ShapePoint middle = pixelsAt(map, position.longitude, position.latitude, false);
    const double distance = middle.getDistanceFrom({static_cast<double>(mouse.X), static_cast<double>(mouse.Y)});
    return distance <= std::max(0.6 * edge, fingerReach(map));
}

double fingerReach(const Map2D& map) {
    return fingerShare * map.getSymbolUnit();
}

} // namespace skyvane
