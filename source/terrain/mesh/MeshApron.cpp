#include "terrain/mesh/MeshApron.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

MeshApron::MeshApron(int sampleAmount) {
    const int last = std::max(sampleAmount - 1, 1), side = last + 1;
    rim_.reserve(static_cast<size_t>(4 * last));
    for (int i = 0; i < last; ++i)
        rim_.push_back(i);
    for (int i = 0; i < last; ++i)
        rim_.push_back(i * side + last);
    for (int i = last; i > 0; --i)
        rim_.push_back(last * side + i);
    for (int i = last; i > 0; --i)
        rim_.push_back(i * side);
}

std::vector<uint16_t> MeshApron::makeIndices() const {
    return makeRingIndices(RingCount, static_cast<int>(rim_.size()), RingTurn::Anticlockwise);
}

double MeshApron::calcShare(double metres) {
    const double way = std::clamp(metres / FadeMetres, 0.0, 1.0);
    return 1.0 - way * way * (3.0 - 2.0 * way);
}

void MeshApron::blend(const TerrainVertex& rim, const TerrainVertex& wideAtRim, double share, TerrainVertex& vertex) {
    const auto part = static_cast<float>(share);
    vertex.position.Y += part * (rim.position.Y - wideAtRim.position.Y);
    vertex.normal = rim.normal * part + vertex.normal * (1.0f - part);
    const float length = std::sqrt(vertex.normal.dotProduct(vertex.normal));
    vertex.normal = length > 0.0f ? vertex.normal * (1.0f / length) : irr::core::vector3d<float>(0.0f, 1.0f, 0.0f);
}

} // namespace skyvane
