#include "chart/elements/AirportElement.h"
#include "chart/elements/AltitudeCodes.h"
#include "chart/geodesy/EarthConstants.h"
#include "core/text/Numbers.h"
#include "displays/map/Map2D.h"
#include "displays/map/elements/AirportRenderer.h"
#include "displays/map/elements/MapDrawing.h"
#include "displays/mapmath/elements/RunwayShapes.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

namespace {

constexpr int mainPriority = 102530, otherPriority = 102520;
constexpr float nearLabel = 1.1f, farLabel = 0.55f; ///< As of ElementLabel.
/// Below it the label tells the elevation too; below the next the numbers of runways stand at their ends.
constexpr double largestElevationArea = 0.6, largestNumberArea = 0.05;
/// A sketch is at least that large, as a share of a symbol.
constexpr double leastSketch = 0.75;
constexpr double farSymbol = 0.75;
constexpr double degreesPerRadian = 57.29577951308232;
const irr::video::SColor labelColor(0xffffffff), labelBackground(0xff1b2027), quietBackground(0xff404040),
    numberColor(0xffffffff);

/// The main airports of a chart: what draws traffic.
bool isMain(const AirportElement& airport) {
    return airport.isTowered && !airport.isClosed && !airport.isHeliport;
}

const char* symbolOf(const AirportElement& airport) {
    const Runway* runway = mainRunway(airport);
    if (airport.isClosed)
        return "airport_closed";
    if (airport.isHeliport)
        return "heliport";
    if (airport.isMilitary)
        return "airport_military";
    if (airport.isTowered)
        return "airport_towered";
    if (runway && runway->surface == Runway::Water)
        return "airport_water";
    if (airport.hasGliders)
        return "airport_glider";
    return airport.isPrivate ? "airport_private" : "airport";
}

constexpr double unimportant = 0.7;
constexpr float unimportantLabel = 0.75f;

/// What matters less takes less room: of fields without a runway next to nothing is known.
double importanceOf(const AirportElement& airport) {
    if (airport.isTowered || airport.isMilitary)
        return 1.0;
    return airport.runways.empty() || airport.isClosed ? 0.66 : 0.85;
}

/// Room for a runway in the middle of the symbol.
bool showsRunway(const AirportElement& airport) {
    const Runway* runway = mainRunway(airport);
    return runway && runway->surface != Runway::Water && !airport.isClosed && !airport.isHeliport &&
           (airport.isTowered || airport.isMilitary || (!airport.isPrivate && !airport.hasGliders));
}

} // namespace

/// Where an airport lies on the map, and how large its sketch is.
struct AirportRenderer::Placed {
    MapAffine affine;
    ShapePoint middle;
    double pixelsPerMetre = 0.0; ///< Of the sketch.
    bool isSketch = false;
    double edge = 0.0; ///< Of what is drawn, in pixels.

    ShapePoint operator()(const AirportSketch::Point& metres) const {
        const ShapePoint east = affine.east / affine.east.getLength(), north = affine.north / affine.north.getLength();
        return middle + (east * metres.X + north * metres.Y) * pixelsPerMetre;
    }
};

AirportRenderer::Placed AirportRenderer::place(const AirportElement& airport, const Map2D& map, bool intoRTT) const {
    Placed placed;
    placed.affine = affineOf(map, intoRTT);
    placed.middle = placed.affine.toPixels(airport.position);
    const AirportSketch* sketch = airport.getSketch();
    placed.edge =
        map.getElementSizePx() * importanceOf(airport) * (map.getViewArea() > largestFullLabelArea ? farSymbol : 1.0);
    placed.isSketch =
        sketch && !sketch->getStrips().empty() && map.getViewArea() <= largestSketchArea && !airport.isClosed;
    if (!placed.isSketch)
        return placed;
    const double extent = 2.0 * std::max(sketch->getHalfExtent().X, sketch->getHalfExtent().Y);
    placed.pixelsPerMetre = std::max(placed.affine.getPixelsPerMetre(), leastSketch * placed.edge / extent);
    placed.edge = extent * placed.pixelsPerMetre;
    return placed;
}

void AirportRenderer::render2D(const IChartElement* element, Map2D* map, int index, bool intoRTT, bool selected) {
    const auto& airport = static_cast<const AirportElement&>(*element);
    const Placed placed = place(airport, *map, intoRTT);
    if (!map->isInside(airport.position, placed.edge, placed.edge, intoRTT))
        return;
    if (placed.isSketch)
        drawRunways(airport, *map, placed, intoRTT);
    else
        drawAirportSymbol(airport, *map, placed, intoRTT);
    if (selected)
        return drawSelectionRing(*map, placed.middle, std::min<double>(placed.edge, 3.0 * map->getElementSizePx()));
    render2DText(element, map, index, intoRTT, selected);
}

void AirportRenderer::drawRunways(const AirportElement& airport, Map2D& map, const Placed& placed, bool intoRTT) {
    const double least = pixelsOf(map, 3.4);
    const ShapeRect view = viewOf(map, intoRTT);
    for (const AirportSketch::Strip& strip : airport.getSketch()->getStrips()) {
        const double width = strip.corners[0].getDistanceFrom(strip.corners[1]) * placed.pixelsPerMetre;
        addRunway(mesh_, placed(strip.ends[0]), placed(strip.ends[1]), width, least, runwayLook(strip.surface), view);
    }
    drawShapes(map, mesh_);
    if (map.getViewArea() <= largestNumberArea)
        drawRunwayNames(airport, map, placed, intoRTT);
}

/// Before the threshold, along the runway, but never upside down while north is up.
void AirportRenderer::drawRunwayNames(const AirportElement& airport, Map2D& map, const Placed& placed, bool intoRTT) {
    const auto& strips = airport.getSketch()->getStrips();
    const double away = pixelsOf(map, 15.0);
    for (size_t i = 0; i < strips.size() && i < airport.runways.size(); ++i)
        for (size_t end = 0; end < 2; ++end) {
            const ShapePoint at = placed(strips[i].ends[end]);
            ShapePoint landing = placed(strips[i].ends[1 - end]) - at;
            landing.normalize();
            const ShapePoint middle = at - landing * away;
            if (landing.Y > 0.0)
                landing = -landing;
            const double turn = -std::atan2(landing.X, -landing.Y) * degreesPerRadian;
            map.drawText(airport.runways[i].getEndLabel(end),
                         {static_cast<float>(middle.X), static_cast<float>(middle.Y)}, numberColor, 0.8f,
                         static_cast<float>(turn), intoRTT);
        }
}

void AirportRenderer::drawAirportSymbol(const AirportElement& airport, Map2D& map, const Placed& placed, bool intoRTT) {
    const Runway* runway = mainRunway(airport);
    const irr::video::SColor color(runway ? runwayLook(runway->surface).symbol : runwayLook(Runway::Solid).symbol);
    drawSymbol(map, parts_.textures.get(symbolOf(airport)), placed.middle, placed.edge, {color, lightHalo}, intoRTT);
    if (!showsRunway(airport))
        return;
    const double turn = placed.affine.getTurnDegrees() + runway->directionDegrees;
    drawTurnedSymbol(map, {parts_.textures.getPicture("airport_runway"), nullptr}, placed.middle, placed.edge,
                     {color, lightHalo}, -turn);
}

void AirportRenderer::render2DText(const IChartElement* element, Map2D* map, int index, bool, bool) {
    const auto& airport = static_cast<const AirportElement&>(*element);
    const bool hasWeather = weather_ && weather_->hasRenderableWeather(index);
    if (map->handleOneTimeRenderLock(index))
        return;
    const double area = map->getViewArea();
    const auto edge =
        static_cast<float>(std::min<double>(place(airport, *map, false).edge, 2.5 * map->getElementSizePx()));
    std::string text = airport.ident.empty() ? airport.name : airport.ident;
    if (area <= largestElevationArea && airport.elevationFeet != AirportElement::UnknownElevation)
        text += "  " + toText(displayedAltitude(airport.elevationFeet, map->isMetric()));
    const float scale = labelUnit * (area > largestFullLabelArea ? farLabel : nearLabel) *
                        (importanceOf(airport) < unimportant ? unimportantLabel : 1.0f);
    const bool isQuiet = airport.isClosed || airport.isPrivate || airport.isHeliport;
    map->addRGDText(index, text, airport.position, -60.0, labelColor, scale, {edge, edge},
                    isQuiet ? quietBackground : labelBackground, isMain(airport) || map->isProcedureTarget(index));
    const float size = 1.6f * map->getElementSizePx();
    if (hasWeather)
        map->addRGDCallback(weather_, index, airport.position, 90.0, {size, size}, {edge, edge});
}

bool AirportRenderer::isMouseOver2D(Map2D* map, const IChartElement* element, int,
                                    const irr::core::vector2d<int>& position) {
    const auto& airport = static_cast<const AirportElement&>(*element);
    const Placed placed = place(airport, *map, false);
    if (!placed.isSketch || placed.edge <= map->getElementSizePx())
        return isMouseOverSymbol(*map, airport.position, placed.edge, position);
    const ShapePoint mouse(position.X, position.Y);
    if (mouse.getDistanceFrom(placed.middle) <= fingerReach(*map))
        return true;
    for (const AirportSketch::Strip& strip : airport.getSketch()->getStrips())
        if (distanceToPath({placed(strip.ends[0]), placed(strip.ends[1])}, false, mouse) <= fingerReach(*map))
            return true;
    return false;
}

int AirportRenderer::getSelectPriority(const IChartElement* element) {
    return isMain(static_cast<const AirportElement&>(*element)) ? mainPriority : otherPriority;
}

bool AirportRenderer::isPotentiallyRenderable(int index, Map2D* map, const char* staticBytes) {
    return filterOf(*map, index).showsAirport(staticBytes);
}

} // namespace skyvane
