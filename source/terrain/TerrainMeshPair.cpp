#include "terrain/TerrainMeshPair.h"

#include <algorithm>

namespace skyvane {
namespace {

const irr::video::SColor knownColor(0xffffffff), unknownColor(0xff000000);

} // namespace

TerrainMeshPair::Instance TerrainMeshPair::makeInstance(const std::vector<uint16_t>& indices, size_t vertexCount,
                                                        int gridSide) {
    const auto buffer = EngineRef<irr::scene::SMeshBuffer>::adopt(new irr::scene::SMeshBuffer);
    buffer->Vertices.set_used(static_cast<irr::u32>(vertexCount));
    for (size_t i = 0; i < vertexCount; ++i) {
        irr::video::S3DVertex& vertex = buffer->Vertices[static_cast<irr::u32>(i)];
        vertex.Color = knownColor;
        if (gridSide > 1) {
            const auto side = static_cast<size_t>(gridSide);
            vertex.TCoords.set(static_cast<float>(i % side) / static_cast<float>(side - 1),
                               static_cast<float>(i / side) / static_cast<float>(side - 1));
        }
    }
    buffer->Indices.set_used(static_cast<irr::u32>(indices.size()));
    std::copy(indices.begin(), indices.end(), buffer->Indices.pointer());
    buffer->setHardwareMappingHint(irr::scene::EHM_DYNAMIC, irr::scene::EBT_VERTEX);
    buffer->setHardwareMappingHint(irr::scene::EHM_STATIC, irr::scene::EBT_INDEX);
    auto mesh = EngineRef<irr::scene::SMesh>::adopt(new irr::scene::SMesh);
    mesh->addMeshBuffer(buffer.get());
    return {mesh, buffer.get()};
}

TerrainMeshPair::TerrainMeshPair(const std::vector<uint16_t>& indices, size_t vertexCount, int gridSide)
    : active_(makeInstance(indices, vertexCount, gridSide)), buffer_(makeInstance(indices, vertexCount, gridSide)) {}

void TerrainMeshPair::copyVertices(const std::vector<TerrainVertex>& vertices, irr::scene::SMeshBuffer& buffer) {
    irr::video::S3DVertex* vertex = buffer.Vertices.pointer();
    const size_t count = std::min<size_t>(vertices.size(), buffer.Vertices.size());
    for (size_t i = 0; i < count; ++i, ++vertex) {
        vertex->Pos = vertices[i].position;
        vertex->Normal = vertices[i].normal;
        vertex->Color = vertices[i].isKnown ? knownColor : unknownColor;
    }
    buffer.setDirty(irr::scene::EBT_VERTEX);
}

TerrainVertex TerrainMeshPair::toTerrainVertex(const irr::video::S3DVertex& vertex) {
    return {vertex.Pos, vertex.Normal, vertex.Color == knownColor};
}

void TerrainMeshPair::fill(const TerrainMesh& mesh, const irr::core::aabbox3df& box) {
    copyVertices(mesh.vertices, *buffer_.buffer);
    buffer_.buffer->BoundingBox = box;
    buffer_.mesh->BoundingBox = box;
}

void TerrainMeshPair::swap() {
    std::swap(active_, buffer_);
}

} // namespace skyvane
