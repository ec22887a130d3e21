#include "terrain/mesh/NearMesh.h"

#include "chart/geodesy/LocalFrame.h"
#include "terrain/tree/TerrainSampler.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace skyvane {
namespace {

/// How strongly vertices are drawn towards the middle.
constexpr double sigma = 0.4;

/// Where a grid place at a distance from the middle (both 0 to 1 along the axes) is drawn to.
double drawInwards(double r, double k) {
    const double remaining = (k - 1.0) * r + 1.0;
    if (remaining <= 0.0001)
        return r;
    const double drawn = -2.0 * sigma * std::log(remaining);
    return drawn > 0.0001 && drawn < 0.9999 ? drawn : r;
}

} // namespace

double NearMesh::undrawInwards(double drawn) {
    const double k = std::exp(-1.0 / (2.0 * sigma));
    return drawn < 0.9999 ? (std::exp(-drawn / (2.0 * sigma)) - 1.0) / (k - 1.0) : drawn;
}

NearMesh::NearMesh(int sampleAmount) : sampleAmount_(std::clamp(sampleAmount, 2, 256)) {}

void NearMesh::placeVertices() {
    const double k = std::exp(-1.0 / (2.0 * sigma));
    const double halfSide = sampleAmount_ / 2.0;
    places_.reserve(static_cast<size_t>(sampleAmount_) * static_cast<size_t>(sampleAmount_));
    for (int row = 0; row < sampleAmount_; ++row)
        for (int column = 0; column < sampleAmount_; ++column) {
            const double u = 2.0 * column / (sampleAmount_ - 1) - 1.0, v = 2.0 * row / (sampleAmount_ - 1) - 1.0;
            const double r = std::sqrt(u * u + v * v);
            const double drawn = drawInwards(r, k);
            const double scale = r > 0.0 ? drawn / r * RadiusMetres : 0.0;
            places_.push_back({u * scale, v * scale,
                               halfSide * halfSide * std::exp(-drawn / (2.0 * sigma)) / ((k - 1.0) * sigma * -200.0)});
        }
}

void NearMesh::build(TerrainSampler& terrain, const ChartPosition& centre, TerrainMesh& mesh) {
    if (places_.empty())
        placeVertices();
    mesh.vertices.resize(places_.size());
    mesh.centre = centre;
    mesh.radiusMetres = static_cast<float>(RadiusMetres);
    HeightFigures figures;
    TerrainVertex* vertex = mesh.vertices.data();
    for (const Place& place : places_) {
        const ChartPosition position =
            Vector3df642ChartPosition(centre, irr::core::vector3d<double>(place.x, 0.0, place.z));
        const TerrainSampler::Height height = terrain.sample(position, place.density);
        vertex->position.set(static_cast<float>(place.x), figures.add(height.metres, height.isKnown),
                             static_cast<float>(place.z));
        vertex++->isKnown = height.isKnown;
    }
    figures.store(mesh);
    calcGridNormals(mesh.vertices, sampleAmount_, GridColumns::Open);
}

std::vector<uint16_t> NearMesh::makeIndices() const {
    const int quads = sampleAmount_ - 1;
    using Triangle = std::array<uint16_t, 3>;
    std::vector<std::pair<int, Triangle>> triangles;
    triangles.reserve(static_cast<size_t>(2 * quads * quads));
    // Distances in thirds of half a step, so that whole numbers do.
    const auto add = [&](int row, int column, int centreRow, int centreColumn, Triangle triangle) {
        const int y = 6 * row + centreRow - 3 * quads, x = 6 * column + centreColumn - 3 * quads;
        triangles.emplace_back(x * x + y * y, triangle);
    };
    for (int row = 0; row < quads; ++row)
        for (int column = 0; column < quads; ++column) {
            const auto sw = static_cast<uint16_t>(row * sampleAmount_ + column);
            const auto nw = static_cast<uint16_t>(sw + sampleAmount_);
            const auto se = static_cast<uint16_t>(sw + 1), ne = static_cast<uint16_t>(nw + 1);
            add(row, column, 4, 2, {sw, nw, ne});
            add(row, column, 2, 4, {sw, ne, se});
        }
    std::stable_sort(triangles.begin(), triangles.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::vector<uint16_t> indices;
    indices.reserve(triangles.size() * 3);
    for (const auto& triangle : triangles)
        indices.insert(indices.end(), triangle.second.begin(), triangle.second.end());
    return indices;
}

} // namespace skyvane
