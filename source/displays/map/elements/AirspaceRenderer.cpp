#include "displays/map/elements/AirspaceRenderer.h"

#include "chart/elements/AirspaceElement.h"
#include "core/Context.h"
#include "displays/PanelManager.h"
#include "displays/map/Map2D.h"
#include "displays/map/elements/MapDrawing.h"
#include "displays/map/elements/RendererParts.h"
#include "displays/mapmath/elements/AirspaceStyles.h"
#include "displays/mapmath/elements/OutlineSketch.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr float lineWidth = 0.0037947f; ///< Of the root of the screen's pixels.
constexpr double bandWidth = 11.0;      ///< In thousandths of it.
constexpr double rimWidth = 0.9;        ///< Likewise: red lines show on red ground by their dark rim.
constexpr double sideFill = 0.25;
constexpr float sideLine = 1.8f; ///< Pixels.
constexpr uint32_t rimColor = 0x80000000;
constexpr double fineStep = 0.7, coarseStep = 4.0;
constexpr double largestLabelArea = 3.0, leastLabelled = 110.0;
constexpr float labelScale = 0.7f;
const irr::video::SColor labelColor(0xffffffff);

} // namespace

void AirspaceRenderer::renderSketch(const IChartElement* element, const irr::core::rect<int>& rect) {
    const auto& airspace = static_cast<const AirspaceElement&>(*element);
    const SketchFrame frame = parts_.painter.frameFor(rect);
    SketchKey key(frame);
    key.add(static_cast<const void*>(parts_.context->getFlexibleFont()));
    key.add(airspace.airspaceClass);
    key.add(airspace.name);
    key.add(airspace.topFeet);
    key.add(airspace.bottomFeet);
    key.add(airspace.isTopMsl);
    key.add(airspace.isBottomMsl);
    key.add(airspace.excludes);
    key.add(airspace.vertices);
    parts_.painter.draw(sketch_.get(key, [&] { return planAirspaceSketch(airspace, frame); }), rect);
}

void AirspaceRenderer::calcColor(const IChartElement* element, const Map2D& map, irr::video::SColor& color,
                                 float& width, float& bandFactor) {
    const AirspaceStyle& style = airspaceStyle(static_cast<const AirspaceElement&>(*element).airspaceClass);
    color = irr::video::SColor(style.argb);
    width = lineWidth * map.getScreenUnit() * style.widthFactor;
    bandFactor = style.bandFactor;
}

void AirspaceRenderer::OnPreRender2D() {
    const PanelManager& panels = *parts_.context->getPanelManager();
    for (size_t i = 0; i < irrelevant_.size(); ++i)
        irrelevant_[i] = i > 0 && isIrrelevant(panels, AirspaceElement::staticAirspaceClassNames[i]);
}

bool AirspaceRenderer::isIrrelevant(const PanelManager& panels, const std::string& airspaceClass) {
    for (unsigned i = 0; i < panels.getIrrelevantAirspaceCount(); ++i)
        if (panels.getIrrelevantAirspace(i) == airspaceClass)
            return true;
    return false;
}

bool AirspaceRenderer::isWanted(const AirspaceElement& airspace, const Map2D& map) const {
    if (airspace.bottomFeet >= map.getAirspacesBelowFeet())
        return false;
    return map.getSwitches().irrelevant || !isIrrelevant(*parts_.context->getPanelManager(), airspace.airspaceClass);
}

void AirspaceRenderer::render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) {
    const auto& airspace = static_cast<const AirspaceElement&>(*element);
    if (!selected && !isWanted(airspace, *map))
        return;
    const MapAffine affine = affineOf(*map, intoRTT);
    const ShapeRect view = viewOf(*map, intoRTT);
    if (!canSee(affine, airspace.getBounds(), view))
        return;
    const bool isDetailed = map->getViewArea() <= largestDetailedAirspaceArea;
    affine.project(airspace.vertices, path_);
    thinOut(path_, isDetailed ? fineStep : coarseStep, thinned_);
    irr::video::SColor color;
    float width, bandFactor;
    calcColor(element, *map, color, width, bandFactor);
    const double band = bandFactor * pixelsOf(*map, bandWidth);
    const uint32_t argb = color.color;
    if (isDetailed)
        addBand(mesh_, thinned_, airspace.excludes ? -band : band, withAlpha(argb, 0.5), withAlpha(argb, 0.12), view);
    if (selected)
        addStroke(mesh_, thinned_, {2.6f * width, selectionColor, true, 0.0f, 0.0f}, view);
    else
        addStroke(mesh_, thinned_, {width + 2.0f * pixelsOf(*map, rimWidth), rimColor, true, 0.0f, 0.0f}, view);
    addStroke(mesh_, thinned_, {width, argb, true, 0.0f, 0.0f}, view);
    drawShapes(*map, mesh_);
    if (!selected)
        addClassLabel(airspace, *map, index, affine);
}

/// Below the northernmost corner of airspaces that are large enough: those inside of each other keep their labels
/// apart.
void AirspaceRenderer::addClassLabel(const AirspaceElement& airspace, Map2D& map, int index, const MapAffine& affine) {
    const PointBounds& bounds = airspace.getBounds();
    if (map.getViewArea() > largestLabelArea || !bounds.isArea)
        return;
    const double pixels = std::sqrt(bounds.areaSquareMetres) * affine.getPixelsPerMetre();
    if (pixels < leastLabelled)
        return;
    const auto north =
        std::max_element(airspace.vertices.begin(), airspace.vertices.end(),
                         [](const ChartPosition& a, const ChartPosition& b) { return a.latitude < b.latitude; });
    const AirspaceStyle& style = airspaceStyle(airspace.airspaceClass);
    addLabel(map, index, *north, 2.0 * pixelsOf(map, bandWidth),
             {airspace.airspaceClass + "  " + airspaceLimits(airspace, map.isMetric()), labelColor,
              irr::video::SColor(darkened(style.argb)), labelScale, -90.0, false});
}

bool AirspaceRenderer::isMouseOver2D(Map2D* map, const IChartElement* element, int,
                                     const irr::core::vector2d<int>& position) {
    const auto& airspace = static_cast<const AirspaceElement&>(*element);
    if (!isWanted(airspace, *map)) // a tap finds what is drawn
        return false;
    affineOf(*map, false).project(airspace.vertices, path_);
    const ShapePoint mouse(position.X, position.Y);
    return isInside(path_, mouse) || distanceToPath(path_, true, mouse) <= fingerReach(*map);
}

int AirspaceRenderer::getPriority(const IChartElement* element) {
    return airspaceStyle(static_cast<const AirspaceElement&>(*element).airspaceClass).priority;
}

int AirspaceRenderer::getSelectPriority(const IChartElement* element) {
    const auto& airspace = static_cast<const AirspaceElement&>(*element);
    return airspaceSelectPriority(airspace.airspaceClass, airspace.getBounds().areaSquareMetres, airspace.bottomFeet);
}

bool AirspaceRenderer::isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) {
    return filterOf(*map, index).showsAirspace(staticBytes, irrelevant_.data(), map->getAirspacesBelowFeet());
}

void AirspaceRenderer::renderSide(ShapeMesh& mesh, const AirspaceStyle& style, const ShapePath& upper,
                                  const ShapePath& lower, const ShapeRect& view) {
    if (upper.size() < 2 || upper.size() != lower.size())
        return;
    const uint32_t fill = withAlpha(style.argb, sideFill);
    uint32_t before = 0;
    for (size_t i = 0; i < upper.size(); ++i) {
        const uint32_t here = mesh.add({static_cast<float>(upper[i].X), static_cast<float>(upper[i].Y)}, fill);
        mesh.add({static_cast<float>(lower[i].X), static_cast<float>(lower[i].Y)}, fill);
        if (i > 0)
            mesh.quad(before, here, here + 1, before + 1);
        before = here;
    }
    static thread_local ShapePath outline; // keeps its memory
    outline.assign(upper.begin(), upper.end());
    outline.insert(outline.end(), lower.rbegin(), lower.rend());
    addStroke(mesh, outline, {sideLine * style.widthFactor + 2.0f, rimColor, true, 0.0f, 0.0f}, view);
    addStroke(mesh, outline, {sideLine * style.widthFactor, style.argb, true, 0.0f, 0.0f}, view);
}

} // namespace skyvane
