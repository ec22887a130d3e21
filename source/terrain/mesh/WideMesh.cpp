#include "terrain/mesh/WideMesh.h"

#include "chart/geodesy/LocalFrame.h"
#include "terrain/tree/TerrainSampler.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double InnerRadiusMetres = 5000.0;
constexpr double RingGrowth = 1.0273147992630516;
constexpr double AngleStep = 0.027318196991304347;
/// Kilometres from ring 0 to ring 1.
constexpr double FirstSpacing = 5.0 * 0.027314799263051557;
constexpr double InnerDensity = 53.61224145645902;
constexpr double LeastDensity = 2.0;

/// Samples per square kilometre that a ring needs, from its distance to the next.
double ringDensity(int ring) {
    if (ring == 0)
        return InnerDensity;
    const double spacing = std::pow(RingGrowth, ring) * FirstSpacing;
    return std::max(1.0 / (spacing * spacing), LeastDensity);
}

} // namespace

double WideMesh::ringRadius(int ring) {
    return InnerRadiusMetres * std::pow(RingGrowth, ring);
}

WideMesh::WideMesh() {
    places_.reserve(static_cast<size_t>(Rings) * VerticesPerRing);
    for (int ring = 0; ring < Rings; ++ring)
        for (int j = 0; j < VerticesPerRing; ++j)
            places_.push_back({ringRadius(ring) * std::sin(j * AngleStep), ringRadius(ring) * std::cos(j * AngleStep)});
}

void WideMesh::build(TerrainSampler& terrain, const ChartPosition& centre, TerrainMesh& mesh) const {
    mesh.vertices.resize(places_.size());
    mesh.centre = centre;
    mesh.radiusMetres = static_cast<float>(ringRadius(Rings - 1));
    HeightFigures figures;
    TerrainVertex* vertex = mesh.vertices.data();
    const Place* place = places_.data();
    for (int ring = 0; ring < Rings; ++ring) {
        const double density = ringDensity(ring);
        for (int j = 0; j < VerticesPerRing; ++j, ++place) {
            const ChartPosition position =
                Vector3df642ChartPosition(centre, irr::core::vector3d<double>(place->x, 0.0, place->z));
            const TerrainSampler::Height height = terrain.sample(position, density);
            vertex->position.set(static_cast<float>(place->x), figures.add(height.metres, height.isKnown),
                                 static_cast<float>(place->z));
            vertex++->isKnown = height.isKnown;
        }
    }
    figures.store(mesh);
    calcGridNormals(mesh.vertices, VerticesPerRing, GridColumns::Closed);
    for (int j = 0; j < VerticesPerRing; ++j)
        mesh.vertices[static_cast<size_t>(j)].position.Y = mesh.minimum - (mesh.maximum - mesh.minimum);
}

WideMesh::Spot WideMesh::locate(double x, double z) {
    static const double logOfGrowth = std::log(RingGrowth);
    const double rings = std::log(std::max(std::hypot(x, z), 1.0) / InnerRadiusMetres) / logOfGrowth;
    const double out = std::clamp(rings, 1.0, static_cast<double>(Rings - 1));
    double around = std::atan2(x, z) / AngleStep;
    around += around < 0.0 ? VerticesPerRing : 0.0;
    const int ring = std::min(static_cast<int>(out), Rings - 2);
    const int column = std::min(static_cast<int>(around), VerticesPerRing - 1);
    const double f = out - ring, g = around - column;
    const int next = (column + 1) % VerticesPerRing;
    const int inner = ring * VerticesPerRing + column, innerNext = ring * VerticesPerRing + next;
    const int outer = inner + VerticesPerRing, outerNext = innerNext + VerticesPerRing;
    const auto weight = [](double value) { return static_cast<float>(value); };
    if (f >= g)
        return {{inner, outer, outerNext}, {weight(1.0 - f), weight(f - g), weight(g)}};
    return {{inner, outerNext, innerNext}, {weight(1.0 - g), weight(f), weight(g - f)}};
}

std::vector<uint16_t> WideMesh::makeIndices() {
    return makeRingIndices(Rings, VerticesPerRing, RingTurn::Clockwise);
}

} // namespace skyvane
