#pragma once

#include "terrain/mesh/TerrainMesh.h"

#include <array>

namespace skyvane {

class TerrainSampler;

/// The ground from 5 to 223 km around the aircraft: rings whose radii grow with the distance, so that each quad is
/// about square. The innermost ring hangs down as a skirt, so that nothing of it shows through the near mesh above.
class WideMesh {
public:
    static constexpr int Rings = 142;
    static constexpr int VerticesPerRing = 230;
    static constexpr double AheadMetres = 2500.0;
    /// Half the size of its box, in all axes: it is never out of sight.
    static constexpr float BoxMetres = 10258246.0f;

    WideMesh();

    /// Vertices ring by ring outwards, each from north clockwise. Allocates only for the first mesh.
    void build(TerrainSampler& terrain, const ChartPosition& centre, TerrainMesh& mesh) const;

    /// Triangles, clockwise seen from above.
    static std::vector<uint16_t> makeIndices();

    /// The corners of the triangle at a place and how much each counts there.
    struct Spot {
        std::array<int, 3> vertices;
        std::array<float, 3> weights;
    };
    /// For metres from the centre; within 2 m of the triangles as they are drawn. What is nearer than the ring beside
    /// the skirt, or beyond the outermost one, is brought onto it.
    static Spot locate(double x, double z);

private:
    static double ringRadius(int ring);

    struct Place {
        double x, z; ///< Metres from the centre.
    };
    std::vector<Place> places_;
};

} // namespace skyvane
