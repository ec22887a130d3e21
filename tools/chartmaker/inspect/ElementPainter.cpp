#include "chartmaker/inspect/ElementPainter.h"

#include "chart/elements/AirportElement.h"
#include "chart/elements/AirspaceElement.h"
#include "chart/elements/AirwayElement.h"
#include "chart/elements/GroundGeometryElement.h"
#include "chart/elements/ObstructionElement.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <string>
#include <unordered_map>

namespace skyvane {
namespace {

using Point = MapPicture::Point;
using Points = std::vector<ChartPosition>;

constexpr uint32_t sea = 0xffcfe3f0;
constexpr uint32_t land = 0xfff3f1e4;
constexpr uint32_t water = 0xffa9cfe8;
constexpr uint8_t coastline = 12;

struct GroundStyle {
    uint32_t area; ///< 0 draws no area.
    uint32_t line;
    double width; ///< Pixels.
    int layer;    ///< Low ones lie below.
};

/// By feature, in the order of GroundGeometryElement's labels.
constexpr GroundStyle groundStyles[GroundGeometryElement::FeatureCount] = {
    {0xffb9b3a4, 0xffb9b3a4, 1.5, 6}, {0xffb9b3a4, 0xffb9b3a4, 1.5, 6}, {0xffdedede, 0xffdedede, 1.5, 6},
    {0xffccc6b8, 0xffa39d8f, 0.7, 5}, {0xffccc6b8, 0xffa39d8f, 0.7, 5}, {0xffdedede, 0xffa39d8f, 0.7, 5},
    {0xff7a6f85, 0xff55505f, 0.7, 7}, {0xffe7c6c6, 0xffb03030, 1.0, 7}, {0xff8d8d8d, 0xff606060, 0.7, 7},
    {0, 0xffc8693c, 2.0, 5},          {0, 0xff404040, 1.4, 5},          {water, 0xff4c92c8, 1.3, 3},
    {land, 0xff3b7bb0, 1.2, 0},       {water, 0xff4c92c8, 0.9, 2},      {0, 0xff8d3f8d, 2.2, 4},
    {0, 0xff8d3f8d, 2.2, 4},          {0, 0xff8d3f8d, 2.2, 4},          {0, 0xff8d3f8d, 2.2, 4},
    {0, 0xff8d3f8d, 2.2, 4},          {0xff5d5d5d, 0xff3b3b3b, 0.6, 8}, {0xfff0d9a0, 0xffd0b46c, 0.8, 1}};

const GroundStyle& styleOf(const GroundGeometryElement& ground) {
    return groundStyles[std::min(ground.feature, GroundGeometryElement::OtherFeature)];
}

bool isClosedLine(const GroundGeometryElement& ground) {
    const Points& vertices = ground.vertices;
    return vertices.size() > 3 && vertices.front().longitude == vertices.back().longitude &&
           vertices.front().latitude == vertices.back().latitude;
}

/// The map's colours of airspaces.
uint32_t airspaceColour(const std::string& airspaceClass) {
    static const std::unordered_map<std::string, uint32_t> colours{
        {"A", 0xff339bff},   {"B", 0xff339bff},   {"C", 0xfff700f7},   {"CTR", 0xfff700f7}, {"D", 0xff4f9fe0},
        {"E", 0xc4404040},   {"F", 0xff004080},   {"G", 0xff004080},   {"DA", 0xffd08000},  {"WA", 0xffd0a000},
        {"RA", 0xffff3c3c},  {"PA", 0xffff3c3c},  {"CTA", 0xff00a602}, {"FIR", 0xff00b0b0}, {"TMA", 0xffe0a000},
        {"TSA", 0xffe0a000}, {"TRA", 0xff909090}, {"AWY", 0xffa0a000}};
    const auto found = colours.find(airspaceClass);
    return found == colours.end() ? 0xff707070 : found->second;
}

/// What is drawn in which order.
int layerOf(const IChartElement& element) {
    static constexpr int layers[IChartElement::TypeCount] = {20, 21, 22, 25, 23, 26, 27, 24, 0};
    if (element.getType() == IChartElement::GROUNDGEOMETRY)
        return styleOf(static_cast<const GroundGeometryElement&>(element)).layer;
    return layers[element.getType()];
}

Points pointsOf(const IChartElement& element) {
    Points points;
    for (int i = 0; i < element.getAreaDefiningPointCount(); ++i)
        points.push_back(element.getAreaDefiningPoint(i));
    return points;
}

std::vector<Point> cornersAround(const Point& middle, std::initializer_list<Point> offsets) {
    std::vector<Point> corners;
    for (const Point& offset : offsets)
        corners.push_back({middle.x + offset.x, middle.y + offset.y});
    return corners;
}

} // namespace

uint32_t ElementPainter::chooseBackground(const Elements& elements) {
    const bool hasCoast = std::any_of(elements.begin(), elements.end(), [](const auto& element) {
        if (element->getType() != IChartElement::GROUNDGEOMETRY)
            return false;
        const auto& ground = static_cast<const GroundGeometryElement&>(*element);
        return ground.feature == coastline && isClosedLine(ground);
    });
    return hasCoast ? sea : land;
}

void ElementPainter::paint(const Elements& elements) {
    std::vector<const IChartElement*> shown;
    for (const auto& element : elements)
        if (picture_.shows(pointsOf(*element)))
            shown.push_back(element.get());
    std::stable_sort(shown.begin(), shown.end(),
                     [](const auto* a, const auto* b) { return layerOf(*a) < layerOf(*b); });
    for (const IChartElement* element : shown)
        paintElement(*element);
    for (auto element = shown.rbegin(); element != shown.rend(); ++element)
        labelElement(**element);
}

void ElementPainter::paintGround(const GroundGeometryElement& ground) {
    const GroundStyle& style = styleOf(ground);
    const bool isArea =
        ground.geoType == GroundGeometryElement::Polygon || (ground.feature == coastline && isClosedLine(ground));
    if (isArea && style.area != 0)
        picture_.area(ground.vertices, style.area);
    const double trueWidth = 0.5 * ground.getWidthSteps() / picture_.getMetresPerPixel();
    constexpr uint8_t railway = 10;
    picture_.line(ground.vertices, isArea, style.line, std::max(style.width, trueWidth));
    if (ground.feature == railway)
        picture_.line(ground.vertices, false, land, 0.5 * style.width, {5.0, 6.0});
}

void ElementPainter::paintAirspace(const AirspaceElement& airspace) {
    constexpr double band = 6.0;
    const uint32_t colour = airspaceColour(airspace.airspaceClass);
    picture_.line(airspace.vertices, true, (colour & 0xffffffu) | 0x40000000u, band);
    picture_.line(airspace.vertices, true, colour, 1.4);
}

void ElementPainter::paintAirport(const AirportElement& airport) {
    constexpr double sketchFrom = 60.0; // metres per pixel up to which the runways show as they lie
    const Point middle = picture_.place(airport.position);
    const AirportSketch* sketch = airport.getSketch();
    if (sketch && picture_.getMetresPerPixel() < sketchFrom) {
        for (const AirportSketch::Strip& strip : sketch->getStrips()) {
            std::vector<Point> corners;
            for (const AirportSketch::Point& corner : strip.corners)
                corners.push_back(
                    picture_.place(Vector3df642ChartPosition(airport.position, {corner.X, 0.0, corner.Y})));
            const uint32_t colours[] = {0xff3b3b3b, 0xff5a4a3a, 0xff4c9a4c, 0xff4060ff, 0xff7d6b4f};
            picture_.polygon(corners, colours[std::min<uint32_t>(strip.surface, 4)], 0xffffffff, 0.6);
        }
    }
    const uint32_t colour = airport.isClosed ? 0xff909090 : airport.isTowered ? 0xff1c4fb0 : 0xff8a2a8a;
    constexpr double radius = 6.0;
    picture_.circle(middle, radius, airport.isHeliport ? 0xffffffff : 0x30ffffff, colour, 2.0);
    if (!airport.runways.empty()) {
        const double turn = airport.runways.front().directionDegrees / 57.29577951308232;
        const Point along{std::sin(turn) * radius * 1.6, -std::cos(turn) * radius * 1.6};
        picture_.polygon(cornersAround(middle, {{along.x, along.y}, {-along.x, -along.y}}), 0, colour, 2.4);
    }
}

void ElementPainter::paintElement(const IChartElement& element) {
    const Point place = picture_.place(element.getPosition());
    switch (element.getType()) {
    case IChartElement::GROUNDGEOMETRY:
        return paintGround(static_cast<const GroundGeometryElement&>(element));
    case IChartElement::AIRSPACE:
        return paintAirspace(static_cast<const AirspaceElement&>(element));
    case IChartElement::AIRPORT:
        return paintAirport(static_cast<const AirportElement&>(element));
    case IChartElement::AIRWAY: {
        const auto& airway = static_cast<const AirwayElement&>(element);
        return picture_.line({airway.start, airway.end}, false, airway.isLowAltitude ? 0x903c96e1 : 0x90a0805a, 1.6);
    }
    case IChartElement::OBSTRUCTION:
        return picture_.polygon(cornersAround(place, {{0, -9}, {4, 3}, {-4, 3}}), 0xffffffff, 0xffc02020, 1.6);
    case IChartElement::WAYPOINT:
        return picture_.polygon(cornersAround(place, {{0, -5}, {4.5, 3}, {-4.5, 3}}), 0xffffffff, 0xff106a78, 1.4);
    case IChartElement::NDB:
        picture_.circle(place, 7.0, 0x40fa6cff, 0xffb040b8, 1.2);
        return picture_.circle(place, 1.6, 0xffb040b8, 0xffb040b8, 1.0);
    case IChartElement::VOR:
        picture_.polygon(cornersAround(place, {{-4, -7}, {4, -7}, {8, 0}, {4, 7}, {-4, 7}, {-8, 0}}), 0x40ffffff,
                         0xff0000ff, 1.5);
        return picture_.circle(place, 1.6, 0xff0000ff, 0xff0000ff, 1.0);
    default:
        return picture_.circle(place, 4.0, 0xffffd030, 0xff806000, 1.2);
    }
}

void ElementPainter::labelGround(const GroundGeometryElement& ground) {
    if (ground.name.empty() || ground.vertices.size() < 2)
        return;
    if (ground.geoType != GroundGeometryElement::Polygon) {
        constexpr uint8_t river = 11;
        const Point middle = picture_.place(ground.vertices[ground.vertices.size() / 2]);
        if (ground.feature == river)
            picture_.label(middle, ground.name, {0xff2f6fa3, 11.0, true});
        return;
    }
    constexpr uint8_t lake = 13;
    Point sum{0.0, 0.0};
    for (const ChartPosition& vertex : ground.vertices) {
        const Point point = picture_.place(vertex);
        sum = {sum.x + point.x, sum.y + point.y};
    }
    const double count = static_cast<double>(ground.vertices.size());
    const Point middle{sum.x / count, sum.y / count};
    if (ground.feature == lake)
        picture_.label(middle, ground.name, {0xff2f6fa3, 12.0, true, true});
    if (ground.feature == GroundGeometryElement::OtherFeature)
        picture_.label({middle.x, middle.y + 12.0}, ground.name, {0xff504020, 13.0, false, true});
}

void ElementPainter::labelElement(const IChartElement& element) {
    const Point place = picture_.place(element.getPosition());
    switch (element.getType()) {
    case IChartElement::GROUNDGEOMETRY:
        return labelGround(static_cast<const GroundGeometryElement&>(element));
    case IChartElement::AIRSPACE: {
        const auto& airspace = static_cast<const AirspaceElement&>(element);
        return picture_.label(place, airspace.getIndicatedLabel(true, false),
                              {airspaceColour(airspace.airspaceClass) | 0xff000000u, 10.0});
    }
    case IChartElement::AIRPORT: {
        const auto& airport = static_cast<const AirportElement&>(element);
        return picture_.label(place, airport.ident + "\n" + airport.name, {0xff20304a, 12.0});
    }
    case IChartElement::AIRWAY:
        return picture_.label(place, element.getIndicatedLabel(false, false), {0xff3c78b4, 10.0, false, true});
    case IChartElement::OBSTRUCTION: {
        const auto& obstruction = static_cast<const ObstructionElement&>(element);
        return picture_.label(place, std::to_string(obstruction.altitudeMslFeet), {0xffa02020, 10.0});
    }
    default:
        return picture_.label(place, element.getIndicatedLabel(false, false), {0xff205060, 11.0});
    }
}

} // namespace skyvane
