#include "procedures/HighwayMeshes.h"

#include <algorithm>
#include <utility>

namespace skyvane {
namespace {

EngineRef<irr::scene::SMesh> makeMesh() {
    const auto buffer = EngineRef<irr::scene::SMeshBuffer>::adopt(new irr::scene::SMeshBuffer);
    buffer->setHardwareMappingHint(irr::scene::EHM_STATIC);
    auto mesh = EngineRef<irr::scene::SMesh>::adopt(new irr::scene::SMesh);
    mesh->addMeshBuffer(buffer.get());
    return mesh;
}

} // namespace

GateShape readGateShape(irr::scene::IMesh* mesh) {
    GateShape shape;
    for (irr::u32 i = 0; mesh && i < mesh->getMeshBufferCount(); ++i) {
        const irr::scene::IMeshBuffer* buffer = mesh->getMeshBuffer(i);
        const auto first = static_cast<uint16_t>(shape.corners.size());
        for (irr::u32 vertex = 0; vertex < buffer->getVertexCount(); ++vertex)
            shape.corners.push_back({buffer->getPosition(vertex), buffer->getNormal(vertex)});
        for (irr::u32 index = 0; index < buffer->getIndexCount(); ++index)
            shape.indices.push_back(static_cast<uint16_t>(first + buffer->getIndices()[index]));
    }
    return shape;
}

HighwayMeshes::HighwayMeshes() : active_(makeMesh()), buffer_(makeMesh()) {}

void HighwayMeshes::fill(const HighwayMesh& mesh) {
    auto* buffer = static_cast<irr::scene::SMeshBuffer*>(buffer_->getMeshBuffer(0));
    buffer->Vertices.set_used(static_cast<irr::u32>(mesh.vertices.size()));
    irr::video::S3DVertex* vertex = buffer->Vertices.pointer();
    for (const HighwayVertex& source : mesh.vertices) {
        vertex->Pos = source.position;
        vertex->Normal = source.normal;
        vertex->Color = irr::video::SColor(source.color);
        ++vertex;
    }
    buffer->Indices.set_used(static_cast<irr::u32>(mesh.indices.size()));
    std::copy(mesh.indices.begin(), mesh.indices.end(), buffer->Indices.pointer());
    buffer->recalculateBoundingBox();
    buffer->setDirty();
    buffer_->recalculateBoundingBox();
}

void HighwayMeshes::swap() {
    std::swap(active_, buffer_);
}

} // namespace skyvane
