#pragma once

#include "terrain/mesh/NearMesh.h"
#include "terrain/mesh/TerrainMesh.h"
#include "terrain/mesh/WideMesh.h"

#include <array>
#include <cstdint>
#include <vector>

namespace skyvane {

/// The ground around the edge of a near mesh, where the wide one, which knows it more coarsely, would make a step: it
/// begins with the heights of that edge and goes over to those of the wide mesh.
///
///     MeshApron apron(nearMesh.getSampleAmount());
///     apron.build([&](int i) { return near.vertices[i]; }, [&](int i) { return wide.vertices[i]; }, x, z, vertices);
///
/// Whoever draws it sinks the wide mesh within CoveredHalfSide of the near one's centre.
class MeshApron {
public:
    /// From the near mesh's edge to where the heights are those of the wide mesh, and to the apron's own end.
    static constexpr double FadeMetres = 1200.0, WidthMetres = 2000.0;
    /// The quads of the wide mesh that reach over this square, up to 850 m long there, end within the apron.
    static constexpr double CoveredHalfSide = 11100.0;

    /// Vertices per side of the near mesh.
    explicit MeshApron(int sampleAmount);

    int getVertexCount() const { return RingCount * static_cast<int>(rim_.size()); }
    /// Triangles, clockwise seen from above.
    std::vector<uint16_t> makeIndices() const;
    /// Both functions give the TerrainVertex of an index; the near mesh's centre lies at x, z of the wide one. The
    /// vertices are in metres from the near mesh's centre. Allocates only the first time.
    template <class NearVertex, class WideVertex>
    void build(NearVertex nearVertex, WideVertex wideVertex, double x, double z,
               std::vector<TerrainVertex>& vertices) const;

private:
    static constexpr int RingCount = 6;
    static constexpr std::array<double, RingCount> RingMetres{0.0, 300.0, 700.0, FadeMetres, 1600.0, WidthMetres};

    /// What is left of the near mesh's own height: 1 at its edge.
    static double calcShare(double metres);
    template <class WideVertex>
    static TerrainVertex sampleWide(WideVertex wideVertex, double x, double z);
    static void blend(const TerrainVertex& rim, const TerrainVertex& wideAtRim, double share, TerrainVertex& vertex);

    std::vector<int> rim_; ///< Vertices of the near mesh's edge, anticlockwise seen from above.
};

template <class WideVertex>
TerrainVertex MeshApron::sampleWide(WideVertex wideVertex, double x, double z) {
    const WideMesh::Spot spot = WideMesh::locate(x, z);
    TerrainVertex sum;
    sum.position.set(0.0f, 0.0f, 0.0f);
    sum.normal.set(0.0f, 0.0f, 0.0f);
    for (size_t i = 0; i < spot.vertices.size(); ++i) {
        const TerrainVertex corner = wideVertex(spot.vertices[i]);
        sum.position.Y += spot.weights[i] * corner.position.Y;
        sum.normal += corner.normal * spot.weights[i];
        sum.isKnown = sum.isKnown && corner.isKnown;
    }
    return sum;
}

template <class NearVertex, class WideVertex>
void MeshApron::build(NearVertex nearVertex, WideVertex wideVertex, double x, double z,
                      std::vector<TerrainVertex>& vertices) const {
    vertices.resize(static_cast<size_t>(getVertexCount()));
    for (size_t i = 0; i < rim_.size(); ++i) {
        const TerrainVertex rim = nearVertex(rim_[i]);
        const double east = static_cast<double>(rim.position.X), north = static_cast<double>(rim.position.Z);
        const TerrainVertex wideAtRim = sampleWide(wideVertex, x + east, z + north);
        vertices[i] = rim;
        for (size_t ring = 1; ring < RingCount; ++ring) {
            const double scale = 1.0 + RingMetres[ring] / NearMesh::RadiusMetres;
            TerrainVertex& vertex = vertices[ring * rim_.size() + i];
            vertex = sampleWide(wideVertex, x + scale * east, z + scale * north);
            vertex.position.X = static_cast<float>(scale * east);
            vertex.position.Z = static_cast<float>(scale * north);
            blend(rim, wideAtRim, calcShare(RingMetres[ring]), vertex);
        }
    }
}

} // namespace skyvane
