#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/geometry/EngineMath.h"

#include <cstdint>
#include <vector>

namespace skyvane {

/// Metres in the frame of the mesh's centre: x east, y up from sea level, z north.
struct TerrainVertex {
    irr::core::vector3d<float> position;
    irr::core::vector3d<float> normal;
    bool isKnown = true; ///< Where nobody knows the height it is 0, which looks like the sea.
};

/// A mesh of the ground as plain arrays; its triangles are those of its kind, always the same.
struct TerrainMesh {
    std::vector<TerrainVertex> vertices;
    ChartPosition centre;
    float radiusMetres = 0.0f;
    /// Metres. The maximum is at least 1 and at least 1 above the minimum, so that nothing divides by 0.
    float minimum = 0.0f;
    float maximum = 1.0f;
    float mean = 0.0f;
    /// No vertex has any terrain: nothing to be shown.
    bool undefined = true;
    /// Some vertex has no height that anybody knows.
    bool incomplete = true;
};

/// Gathers what a mesh says of its heights while they come.
class HeightFigures {
public:
    /// Infinity, for no terrain, counts as 0; the result is the height to use.
    float add(float height, bool isKnown);
    /// A mesh without any height is undefined.
    void store(TerrainMesh& mesh) const;

private:
    float minimum_ = 1e9f;
    float maximum_ = -1e9f;
    double sum_ = 0.0;
    unsigned count_ = 0;
    bool defined_ = false;
    bool complete_ = true;
};

/// Vertices by rows of columns. Seen from above, columns go clockwise of the direction in which rows go (east of north,
/// say), and with `Closed` the last column neighbours the first.
enum class GridColumns { Open, Closed };

/// The normal of each vertex: the unit sum of the unit normals of the up to four quadrants that it forms with its
/// neighbours.
void calcGridNormals(std::vector<TerrainVertex>& vertices, int columns, GridColumns closing);

/// Which way the vertices of a ring run, seen from above.
enum class RingTurn { Clockwise, Anticlockwise };

/// The triangles between closed rings of as many vertices each, the innermost first; clockwise seen from above.
std::vector<uint16_t> makeRingIndices(int rings, int verticesPerRing, RingTurn turn);

/// Moves a position this far on in the direction that leads from `last` to it; not at all when they are the same.
ChartPosition moveAhead(const ChartPosition& last, const ChartPosition& position, double metres);

} // namespace skyvane
