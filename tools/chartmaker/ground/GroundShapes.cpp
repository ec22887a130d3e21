#include "chartmaker/ground/GroundShapes.h"

#include "chart/geodesy/EarthConstants.h"

#include <ogr_geometry.h>

#include <algorithm>
#include <cmath>
#include <memory>

namespace skyvane {
namespace {

using Geometry = std::unique_ptr<OGRGeometry>;

/// Longitudes are scaled so that a unit is the same in all directions, nowhere shorter than on the earth.
double eastScaleOf(const GroundLine& line) {
    double least = 90.0;
    for (const ChartPosition& position : line)
        least = std::min(least, std::fabs(position.latitude));
    return std::max(std::cos(least / DegreesPerRadian), PolarCosine);
}

void fill(OGRLineString& out, const GroundLine& line, double eastScale, bool isRing) {
    for (const ChartPosition& position : line)
        out.addPoint(position.longitude * eastScale, position.latitude);
    if (isRing)
        out.closeRings();
}

std::unique_ptr<OGRLineString> toLine(const GroundLine& line, double eastScale = 1.0) {
    auto out = std::make_unique<OGRLineString>();
    fill(*out, line, eastScale, false);
    return out;
}

std::unique_ptr<OGRPolygon> toPolygon(const GroundPolygon& polygon, double eastScale = 1.0) {
    auto out = std::make_unique<OGRPolygon>();
    const auto addRing = [&](const GroundLine& line) {
        auto ring = std::make_unique<OGRLinearRing>();
        fill(*ring, line, eastScale, true);
        out->addRingDirectly(ring.release());
    };
    addRing(polygon.outline);
    for (const GroundLine& hole : polygon.holes)
        addRing(hole);
    return out;
}

GroundLine fromLine(const OGRLineString& line, double eastScale, bool isRing) {
    GroundLine out;
    for (int i = 0; i < line.getNumPoints() - (isRing ? 1 : 0); ++i)
        out.emplace_back(line.getX(i) / eastScale, line.getY(i));
    return out;
}

GroundPolygon fromPolygon(const OGRPolygon& polygon, double eastScale) {
    GroundPolygon out{fromLine(*polygon.getExteriorRing(), eastScale, true), {}};
    for (int i = 0; i < polygon.getNumInteriorRings(); ++i)
        out.holes.push_back(fromLine(*polygon.getInteriorRing(i), eastScale, true));
    return out;
}

/// Calls visit for each part of that kind, however deep it lies in collections.
template <class Part, class Visit>
void forParts(const OGRGeometry* geometry, OGRwkbGeometryType type, Visit visit) {
    if (!geometry || geometry->IsEmpty())
        return;
    if (wkbFlatten(geometry->getGeometryType()) == type)
        return visit(static_cast<const Part&>(*geometry));
    if (!OGR_GT_IsSubClassOf(wkbFlatten(geometry->getGeometryType()), wkbGeometryCollection))
        return;
    for (const OGRGeometry* part : *geometry->toGeometryCollection())
        forParts<Part>(part, type, visit);
}

std::vector<GroundPolygon> polygonsOf(const OGRGeometry* geometry, double eastScale = 1.0) {
    std::vector<GroundPolygon> polygons;
    forParts<OGRPolygon>(geometry, wkbPolygon, [&](const OGRPolygon& polygon) {
        if (polygon.get_Area() > 0.0)
            polygons.push_back(fromPolygon(polygon, eastScale));
    });
    return polygons;
}

OGRPolygon boxPolygon(const GroundBox& box) {
    OGRPolygon polygon;
    auto ring = std::make_unique<OGRLinearRing>();
    ring->addPoint(box.west, box.south);
    ring->addPoint(box.east, box.south);
    ring->addPoint(box.east, box.north);
    ring->addPoint(box.west, box.north);
    ring->closeRings();
    polygon.addRingDirectly(ring.release());
    return polygon;
}

OGREnvelope toEnvelope(const GroundBox& box) {
    OGREnvelope envelope;
    envelope.MinX = box.west;
    envelope.MaxX = box.east;
    envelope.MinY = box.south;
    envelope.MaxY = box.north;
    return envelope;
}

/// Calls take with what of the geometry lies in each box.
template <class Take>
void clip(const OGRGeometry& geometry, const std::vector<GroundBox>& boxes, bool& isWhole, Take take) {
    OGREnvelope envelope;
    geometry.getEnvelope(&envelope);
    for (const GroundBox& box : boxes) {
        const OGREnvelope limits = toEnvelope(box);
        if (!limits.Intersects(envelope))
            continue;
        if (limits.Contains(envelope))
            return take(&geometry);
        const OGRPolygon frame = boxPolygon(box);
        const Geometry inside(geometry.Intersection(&frame));
        isWhole &= inside != nullptr;
        take(inside.get());
    }
}

/// Where to cut a polygon that must be split: through its first hole, along the edges of the area tree's leaves, or in
/// the middle. False when it needn't be.
bool chooseCut(const OGRPolygon& polygon, const OGREnvelope& extent, bool& isVertical, double& at) {
    const double width = extent.MaxX - extent.MinX;
    const double height = extent.MaxY - extent.MinY;
    isVertical = width >= height;
    const double low = isVertical ? extent.MinX : extent.MinY;
    const double high = isVertical ? extent.MaxX : extent.MaxY;
    const double longer = high - low;
    if (longer > MaxPolygonDegrees + 1e-9) {
        at = std::round(0.5 * (low + high) / MaxPolygonDegrees) * MaxPolygonDegrees;
        if (at < low + 0.1 * longer || at > high - 0.1 * longer)
            at = 0.5 * (low + high);
        return true;
    }
    if (polygon.getNumInteriorRings() > 0) {
        OGREnvelope hole;
        polygon.getInteriorRing(0)->getEnvelope(&hole);
        at = isVertical ? 0.5 * (hole.MinX + hole.MaxX) : 0.5 * (hole.MinY + hole.MaxY);
        return true;
    }
    at = 0.5 * (low + high);
    return polygon.getExteriorRing()->getNumPoints() > static_cast<int>(MaxPolygonPoints) + 1;
}

void splitInto(const OGRPolygon& polygon, int depth, std::vector<GroundLine>& rings, bool& isWhole) {
    constexpr int deepest = 48; // a number of halvings that no polygon of this earth needs
    OGREnvelope extent;
    polygon.getEnvelope(&extent);
    bool isVertical = true;
    double at = 0.0;
    if (!chooseCut(polygon, extent, isVertical, at)) {
        rings.push_back(fromLine(*polygon.getExteriorRing(), 1.0, true));
        return;
    }
    if (depth >= deepest) {
        isWhole = false;
        return;
    }
    GroundBox low{extent.MinX - 1.0, extent.MinY - 1.0, extent.MaxX + 1.0, extent.MaxY + 1.0};
    GroundBox high = low;
    (isVertical ? low.east : low.north) = at;
    (isVertical ? high.west : high.south) = at;
    for (const GroundBox& half : {low, high}) {
        const OGRPolygon frame = boxPolygon(half);
        const Geometry part(polygon.Intersection(&frame));
        isWhole &= part != nullptr;
        forParts<OGRPolygon>(part.get(), wkbPolygon, [&](const OGRPolygon& piece) {
            constexpr double sliver = 1e-13; // square degrees, some square millimetres
            if (piece.get_Area() > sliver)
                splitInto(piece, depth + 1, rings, isWhole);
        });
    }
}

} // namespace

GroundLine simplifyLine(const GroundLine& line, double toleranceMetres) {
    if (line.size() < 3 || toleranceMetres <= 0.0)
        return line;
    const double eastScale = eastScaleOf(line);
    const Geometry simple(toLine(line, eastScale)->Simplify(toleranceMetres / MetresPerDegree));
    if (!simple || wkbFlatten(simple->getGeometryType()) != wkbLineString || simple->IsEmpty())
        return line;
    GroundLine out = fromLine(*simple->toLineString(), eastScale, false);
    if (out.size() < 2)
        return line;
    out.front() = line.front(); // the very same: junctions stay junctions
    out.back() = line.back();
    return out;
}

std::vector<GroundPolygon> simplifyPolygon(const GroundPolygon& polygon, double toleranceMetres, bool& isWhole) {
    if (polygon.outline.size() < 3)
        return {};
    const double eastScale = eastScaleOf(polygon.outline);
    Geometry geometry = toPolygon(polygon, eastScale);
    if (!geometry->IsValid())
        geometry.reset(geometry->MakeValid());
    if (!geometry) {
        isWhole = false;
        return {};
    }
    if (toleranceMetres > 0.0) {
        Geometry simple(geometry->SimplifyPreserveTopology(toleranceMetres / MetresPerDegree));
        if (simple && !simple->IsEmpty())
            geometry = std::move(simple);
    }
    return polygonsOf(geometry.get(), eastScale);
}

std::vector<GroundLine> clipLine(const GroundLine& line, const std::vector<GroundBox>& boxes, bool& isWhole) {
    std::vector<GroundLine> lines;
    clip(*toLine(line), boxes, isWhole, [&](const OGRGeometry* inside) {
        forParts<OGRLineString>(inside, wkbLineString,
                                [&](const OGRLineString& part) { lines.push_back(fromLine(part, 1.0, false)); });
    });
    return lines;
}

std::vector<GroundPolygon> clipPolygon(const GroundPolygon& polygon, const std::vector<GroundBox>& boxes,
                                       bool& isWhole) {
    std::vector<GroundPolygon> polygons;
    clip(*toPolygon(polygon), boxes, isWhole, [&](const OGRGeometry* inside) {
        for (GroundPolygon& part : polygonsOf(inside))
            polygons.push_back(std::move(part));
    });
    return polygons;
}

std::vector<GroundLine> splitPolygon(const GroundPolygon& polygon, bool& isWhole) {
    std::vector<GroundLine> rings;
    splitInto(*toPolygon(polygon), 0, rings, isWhole);
    return rings;
}

std::vector<GroundLine> splitLine(const GroundLine& line, size_t points) {
    std::vector<GroundLine> pieces;
    for (size_t from = 0; from + 1 < line.size(); from += points - 1) {
        const size_t to = std::min(from + points, line.size());
        pieces.emplace_back(line.begin() + static_cast<std::ptrdiff_t>(from),
                            line.begin() + static_cast<std::ptrdiff_t>(to));
    }
    return pieces;
}

} // namespace skyvane
