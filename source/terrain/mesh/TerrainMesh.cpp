#include "terrain/mesh/TerrainMesh.h"

#include "chart/geodesy/Angles.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

namespace skyvane {
namespace {

using Vector = irr::core::vector3d<float>;

constexpr double ShortestMove = 1.0;

void addUnitNormal(Vector& sum, const Vector& first, const Vector& second) {
    const Vector cross(first.Y * second.Z - first.Z * second.Y, first.Z * second.X - first.X * second.Z,
                       first.X * second.Y - first.Y * second.X);
    const float length = cross.X * cross.X + cross.Y * cross.Y + cross.Z * cross.Z;
    if (length > 0.0f) {
        const float scale = 1.0f / std::sqrt(length);
        sum.X += cross.X * scale;
        sum.Y += cross.Y * scale;
        sum.Z += cross.Z * scale;
    }
}

/// The neighbours of a vertex, null beyond the edges of the grid.
struct Neighbours {
    const TerrainVertex *next, *right, *previous, *left;
};

Vector calcNormal(const TerrainVertex& vertex, const Neighbours& around) {
    Vector sides[4];
    const TerrainVertex* neighbours[] = {around.next, around.right, around.previous, around.left};
    for (int i = 0; i < 4; ++i)
        if (neighbours[i])
            sides[i] = neighbours[i]->position - vertex.position;
    Vector sum;
    for (int i = 0; i < 4; ++i)
        if (neighbours[i] && neighbours[(i + 1) % 4])
            addUnitNormal(sum, sides[i], sides[(i + 1) % 4]);
    const float length = std::sqrt(sum.X * sum.X + sum.Y * sum.Y + sum.Z * sum.Z);
    return length > 0.0f ? sum * (1.0f / length) : Vector(0.0f, 1.0f, 0.0f);
}

} // namespace

float HeightFigures::add(float height, bool isKnown) {
    const bool defined = std::isfinite(height);
    defined_ |= defined;
    complete_ &= isKnown;
    if (!defined)
        height = 0.0f;
    minimum_ = std::min(minimum_, height);
    maximum_ = std::max(maximum_, height);
    sum_ += static_cast<double>(height);
    ++count_;
    return height;
}

void HeightFigures::store(TerrainMesh& mesh) const {
    mesh.undefined = !defined_;
    mesh.incomplete = !defined_ || !complete_;
    mesh.minimum = count_ ? minimum_ : 0.0f;
    mesh.mean = count_ ? static_cast<float>(sum_ / count_) : 0.0f;
    mesh.maximum = std::max({count_ ? maximum_ : 0.0f, mesh.minimum + 1.0f, 1.0f});
}

void calcGridNormals(std::vector<TerrainVertex>& vertices, int columns, GridColumns closing) {
    const int rows = static_cast<int>(vertices.size()) / columns;
    TerrainVertex* vertex = vertices.data();
    for (int row = 0; row < rows; ++row)
        for (int column = 0; column < columns; ++column, ++vertex) {
            const bool closed = closing == GridColumns::Closed;
            const Neighbours around = {
                row + 1 < rows ? vertex + columns : nullptr,
                column + 1 < columns ? vertex + 1
                : closed             ? vertex + 1 - columns
                                     : nullptr,
                row > 0 ? vertex - columns : nullptr,
                column > 0 ? vertex - 1
                : closed   ? vertex - 1 + columns
                           : nullptr,
            };
            vertex->normal = calcNormal(*vertex, around);
        }
}

std::vector<uint16_t> makeRingIndices(int rings, int verticesPerRing, RingTurn turn) {
    std::vector<uint16_t> indices;
    indices.reserve(6 * static_cast<size_t>(std::max(rings - 1, 0)) * static_cast<size_t>(verticesPerRing));
    const auto add = [&indices, turn](int first, int second, int third) {
        if (turn == RingTurn::Anticlockwise)
            std::swap(second, third);
        for (const int vertex : {first, second, third})
            indices.push_back(static_cast<uint16_t>(vertex));
    };
    for (int ring = 0; ring + 1 < rings; ++ring)
        for (int j = 0; j < verticesPerRing; ++j) {
            const int inner = ring * verticesPerRing + j,
                      innerNext = ring * verticesPerRing + (j + 1) % verticesPerRing;
            const int outer = inner + verticesPerRing, outerNext = innerNext + verticesPerRing;
            add(inner, outer, outerNext);
            add(inner, outerNext, innerNext);
        }
    return indices;
}

ChartPosition moveAhead(const ChartPosition& last, const ChartPosition& position, double metres) {
    const auto way = ChartPosition2Vector3df64(last, position, 0.0);
    const double length = way.getLength();
    if (!(length > ShortestMove))
        return position;
    const ChartPosition moved = Vector3df642ChartPosition(position, way * (metres / length));
    return ChartPosition(Angle0to360(moved.longitude), Latitudinize(moved.latitude));
}

} // namespace skyvane
