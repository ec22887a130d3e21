#include "procedures/highway/Highway.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthConstants.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {
namespace {

using Place = irr::core::vector3d<double>;

constexpr double ShortestLegMetres = 1e-7;
constexpr float BarShare = 0.06f; // of a side
constexpr uint32_t PathColor = 0xffff00ff;
constexpr uint32_t TransitionColor = 0xff0080ff;

struct Leg {
    Place a, b;
    const CourseElement* from;
    const CourseElement* to;
    double length; ///< horizontal

    HighwayGate gateAt(double metres) const {
        const double share = metres / length;
        return {a + (b - a) * share, from->course + Angle180(to->course - from->course) * share,
                from->transition || to->transition};
    }
};

std::vector<Leg> legsOf(const std::vector<CourseElement>& path, const ChartPosition& centre) {
    std::vector<Leg> legs;
    for (size_t i = 1; i < path.size(); ++i) {
        Leg leg{ChartPosition2Vector3df64(centre, path[i - 1].position, path[i - 1].altitude),
                ChartPosition2Vector3df64(centre, path[i].position, path[i].altitude), &path[i - 1], &path[i], 0.0};
        leg.length = std::hypot(leg.b.X - leg.a.X, leg.b.Z - leg.a.Z);
        if (leg.length >= ShortestLegMetres)
            legs.push_back(leg);
    }
    return legs;
}

double shareNearest(const Leg& leg, const Place& aircraft) {
    const Place along = leg.b - leg.a;
    return std::clamp((aircraft - leg.a).dotProduct(along) / along.getLengthSQ(), 0.0, 1.0);
}

size_t findNearest(const std::vector<Leg>& legs, const Place& aircraft) {
    size_t nearest = 0;
    double least = std::numeric_limits<double>::infinity();
    for (size_t i = 0; i < legs.size(); ++i) {
        const Place place = legs[i].a + (legs[i].b - legs[i].a) * shareNearest(legs[i], aircraft);
        const double square = place.getDistanceFromSQ(aircraft);
        if (square < least) {
            least = square;
            nearest = i;
        }
    }
    return nearest;
}

irr::core::vector3d<float> rounded(const Place& place) {
    return {static_cast<float>(place.X), static_cast<float>(place.Y), static_cast<float>(place.Z)};
}

/// A face that looks along the course keeps its colour.
uint32_t shaded(uint32_t argb, float onwards) {
    constexpr float darkest = 0.8f;
    const float light = darkest + (1.0f - darkest) * std::abs(onwards);
    uint32_t result = argb & 0xff000000u;
    for (const unsigned shift : {0u, 8u, 16u})
        result |= static_cast<uint32_t>(static_cast<float>((argb >> shift) & 0xffu) * light + 0.5f) << shift;
    return result;
}

void appendGate(const HighwayGate& gate, const HighwaySize& size, const GateShape& shape, HighwayMesh& mesh) {
    const double course = gate.course / DegreesPerRadian;
    const Place right(std::cos(course), 0.0, -std::sin(course)), up(0.0, 1.0, 0.0);
    const Place onwards(std::sin(course), 0.0, std::cos(course));
    const auto turned = [&](const irr::core::vector3d<float>& v, double x, double y, double z) {
        return right * (static_cast<double>(v.X) * x) + up * (static_cast<double>(v.Y) * y) +
               onwards * (static_cast<double>(v.Z) * z);
    };
    const auto first = static_cast<uint16_t>(mesh.vertices.size());
    for (const GateShape::Corner& corner : shape.corners) {
        const Place place =
            gate.place + turned(corner.position, size.widthMetres, size.heightMetres, GateShape::DepthMetres);
        mesh.vertices.push_back({rounded(place), rounded(turned(corner.normal, 1.0, 1.0, 1.0)),
                                 shaded(gate.transition ? TransitionColor : PathColor, corner.normal.Z)});
    }
    for (const uint16_t index : shape.indices)
        mesh.indices.push_back(static_cast<uint16_t>(first + index));
}

} // namespace

/// Four outer corners, four inner ones.
GateShape GateShape::flatFrame() {
    GateShape shape;
    for (int corner = 0; corner < HighwayMesh::VerticesPerGate; ++corner) {
        const bool isInner = corner >= 4, isRight = corner % 4 == 1 || corner % 4 == 2, isTop = corner % 4 >= 2;
        const float reach = 0.5f - (isInner ? BarShare : 0.0f);
        shape.corners.push_back({{isRight ? reach : -reach, isTop ? reach : -reach, 0.0f}, {0.0f, 0.0f, -1.0f}});
    }
    for (int side = 0; side < 4; ++side) {
        const int next = (side + 1) % 4;
        for (const int index : {side, next, next + 4, side, next + 4, side + 4})
            shape.indices.push_back(static_cast<uint16_t>(index));
    }
    return shape;
}

std::vector<HighwayGate> placeGates(const std::vector<CourseElement>& path, const ChartPosition& aircraft,
                                    double altitudeMetres, double spacingMetres, double& coveredMetres) {
    constexpr double leastSpacing = 50.0; // also where it is no number
    const double spacing = spacingMetres > leastSpacing ? spacingMetres : leastSpacing;
    coveredMetres = std::numeric_limits<double>::infinity();
    std::vector<HighwayGate> gates;
    const std::vector<Leg> legs = legsOf(path, aircraft);
    if (legs.empty())
        return gates;
    const Place own(0.0, altitudeMetres, 0.0);
    const size_t nearest = findNearest(legs, own);
    const double projection = shareNearest(legs[nearest], own) * legs[nearest].length;

    const double ahead = std::ceil(projection / spacing);
    for (int i = 1; i <= HighwayMesh::MostBackward && ahead - i >= 0.0; ++i)
        gates.push_back(legs[nearest].gateAt((ahead - i) * spacing));

    int forward = 0;
    double flown = -projection;
    for (size_t leg = nearest; leg < legs.size(); ++leg) {
        for (double metres = leg == nearest ? ahead * spacing : 0.0; metres <= legs[leg].length; metres += spacing) {
            if (forward++ == HighwayMesh::MostForward) {
                coveredMetres = flown + metres;
                return gates;
            }
            gates.push_back(legs[leg].gateAt(metres));
        }
        flown += legs[leg].length;
    }
    return gates;
}

void buildHighway(const std::vector<CourseElement>& path, const ChartPosition& aircraft, double altitudeMetres,
                  const HighwaySize& size, const GateShape& shape, HighwayMesh& mesh) {
    mesh.centre = aircraft;
    mesh.vertices.clear();
    mesh.indices.clear();
    for (const HighwayGate& gate : placeGates(path, aircraft, altitudeMetres, size.spacingMetres, mesh.coveredMetres))
        appendGate(gate, size, shape, mesh);
}

} // namespace skyvane
