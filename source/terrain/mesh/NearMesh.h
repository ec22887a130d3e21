#pragma once

#include "terrain/mesh/TerrainMesh.h"

namespace skyvane {

class TerrainSampler;

/// The ground within 10 km of the aircraft: a square grid whose vertices are drawn towards the middle, each with the
/// height that its distance to its neighbours needs.
class NearMesh {
public:
    static constexpr double RadiusMetres = 10000.0;
    /// How far ahead of the aircraft a mesh is made that follows another.
    static constexpr double AheadMetres = 150.0;

    /// Vertices per side, at most 256: indices have 16 bits.
    explicit NearMesh(int sampleAmount);

    /// Vertices in rows from south to north, each from west to east. Allocates only for the first mesh.
    void build(TerrainSampler& terrain, const ChartPosition& centre, TerrainMesh& mesh);

    int getSampleAmount() const { return sampleAmount_; }
    /// Where in the even grid the place was that the mesh has at this distance from its middle; both in radii.
    static double undrawInwards(double drawn);
    /// Triangles, clockwise seen from above, those nearest to the middle first.
    std::vector<uint16_t> makeIndices() const;

private:
    struct Place {
        double x, z;    ///< Metres from the centre.
        double density; ///< Samples per square kilometre.
    };

    void placeVertices();

    int sampleAmount_;
    std::vector<Place> places_; ///< Made with the first mesh.
};

} // namespace skyvane
