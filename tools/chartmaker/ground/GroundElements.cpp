#include "chartmaker/ground/GroundElements.h"

#include "chart/elements/GroundGeometryElement.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/PointSets.h"
#include "chartmaker/region/Region.h"
#include "core/text/Numbers.h"

#include <algorithm>
#include <cmath>
#include <list>

namespace skyvane {
namespace {

constexpr uint8_t lastAirportFeature = 8; // taxiways, aprons, terminals, helipads, hangars
constexpr uint8_t runwayFeature = 19;
constexpr size_t maxLinePoints = 2000;

bool belongsToAirport(uint8_t feature) {
    return feature <= lastAirportFeature || feature == runwayFeature;
}

/// The region's box in longitudes of -180 to 180: two when it crosses the antimeridian. One round the world without.
std::vector<GroundBox> boxesOf(const Region& region) {
    if (!region.isBox())
        return {GroundBox()};
    const ChartPosition northWest = region.getNorthWest(), southEast = region.getSouthEast();
    const double west = std::remainder(northWest.longitude, 360.0);
    const double east = west + southEast.longitude - northWest.longitude;
    std::vector<GroundBox> boxes{{west, southEast.latitude, std::min(east, 180.0), northWest.latitude}};
    if (east > 180.0)
        boxes.push_back({-180.0, southEast.latitude, east - 360.0, northWest.latitude});
    return boxes;
}

double areaOf(const GroundLine& ring) {
    std::list<ChartPosition> points(ring.begin(), ring.end());
    return calcPolyLineArea(points);
}

} // namespace

GroundElements::GroundElements(const std::string& path, const SourceContext& context)
    : path_(path), context_(context), boxes_(boxesOf(context.region)) {}

double GroundElements::toleranceOf(uint8_t feature) const {
    constexpr double airportTolerance = 1.0;
    const double tolerance = context_.groundToleranceMetres;
    return belongsToAirport(feature) ? std::min(tolerance, airportTolerance) : tolerance;
}

void GroundElements::addArea(const GroundKind& kind, const std::string& name, const GroundPolygon& polygon) {
    const double tolerance = toleranceOf(kind.feature);
    const double smallest = belongsToAirport(kind.feature) ? 0.0 : 100.0 * tolerance * tolerance;
    bool isWhole = true;
    // First made sound, then cut: cutting crossed outlines may fail.
    for (const GroundPolygon& simple : simplifyPolygon(polygon, tolerance, isWhole)) {
        if (areaOf(simple.outline) < smallest)
            continue;
        for (const GroundPolygon& inside : clipPolygon(simple, boxes_, isWhole))
            for (GroundLine& ring : splitPolygon(inside, isWhole))
                addElement(kind, name, std::move(ring));
    }
    if (!isWhole)
        tellLoss("area", name, polygon.outline);
}

void GroundElements::addLine(const GroundKind& kind, const std::string& name, GroundLine line) {
    if (line.size() > 1)
        lines_[{kind.feature, kind.widthSteps, name}].push_back(std::move(line));
}

void GroundElements::addEdge(const GroundKind& kind, GroundLine ring) {
    if (ring.size() > 2)
        edges_[kind.feature].push_back(std::move(ring));
}

// A border may be drawn under another feature too: as a river, say.
void GroundElements::addNewEdges() {
    constexpr uint8_t firstBorder = 14, lastBorder = 18;
    for (const auto& [edgeFeature, edges] : edges_) {
        std::vector<GroundLine> drawn;
        for (const auto& [lineKind, lines] : lines_) {
            const uint8_t feature = std::get<0>(lineKind);
            const bool areBorders = edgeFeature == firstBorder && feature >= firstBorder && feature <= lastBorder;
            if (feature == edgeFeature || areBorders)
                drawn.insert(drawn.end(), lines.begin(), lines.end());
        }
        for (GroundLine& line : leaveOutRepeated(edges, drawn))
            addLine({edgeFeature, false, 0}, "", std::move(line));
    }
    edges_.clear();
}

void GroundElements::finish() {
    addNewEdges();
    for (const auto& [lineKind, lines] : lines_) {
        const auto& [feature, widthSteps, name] = lineKind;
        for (const GroundLine& joined : joinLines(leaveOutRepeated(lines, {}))) {
            bool isWhole = true;
            for (const GroundLine& line : clipLine(simplifyLine(joined, toleranceOf(feature)), boxes_, isWhole))
                for (GroundLine& piece : splitLine(line, maxLinePoints))
                    addElement({feature, false, widthSteps}, name, std::move(piece));
            if (!isWhole)
                tellLoss("line", name, joined);
        }
    }
    lines_.clear();
}

void GroundElements::tellLoss(const char* what, const std::string& name, const GroundLine& where) {
    const std::string place =
        where.empty() ? "" : " at " + toText(where[0].latitude) + " " + toText(where[0].longitude);
    context_.sink.refuse({path_, 0}, std::string("a part of the ") + what + (name.empty() ? "" : " \"" + name + "\"") +
                                         place + ": it can't be cut to its size");
}

void GroundElements::addElement(const GroundKind& kind, const std::string& name, GroundLine vertices) {
    auto element = std::make_unique<GroundGeometryElement>();
    element->feature = kind.feature;
    element->geoType = kind.isArea ? GroundGeometryElement::Polygon : GroundGeometryElement::Line;
    element->additionalData = kind.widthSteps;
    element->name = name;
    if (kind.feature == GroundGeometryElement::OtherFeature)
        element->description = "Built-up area";
    element->vertices = std::move(vertices);
    element->recalculateBoundingBox();
    ++count_;
    context_.sink.add(std::move(element), SourceLine{path_, 0});
}

} // namespace skyvane
