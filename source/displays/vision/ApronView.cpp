#include "displays/vision/ApronView.h"

#include "terrain/TerrainMeshPair.h"

#include <algorithm>

namespace skyvane {

void ApronView::prepare(int sampleAmount) {
    if (apron_ && sampleAmount == sampleAmount_)
        return;
    sampleAmount_ = sampleAmount;
    apron_ = std::make_unique<MeshApron>(sampleAmount);
    buffer_ = EngineRef<irr::scene::SMeshBuffer>::adopt(new irr::scene::SMeshBuffer);
    const std::vector<uint16_t> indices = apron_->makeIndices();
    buffer_->Indices.set_used(static_cast<irr::u32>(indices.size()));
    std::copy(indices.begin(), indices.end(), buffer_->Indices.pointer());
    buffer_->Vertices.set_used(static_cast<irr::u32>(apron_->getVertexCount()));
    buffer_->setHardwareMappingHint(irr::scene::EHM_DYNAMIC, irr::scene::EBT_VERTEX);
    buffer_->setHardwareMappingHint(irr::scene::EHM_STATIC, irr::scene::EBT_INDEX);
}

void ApronView::fill(const irr::scene::IMeshBuffer& near, int sampleAmount, const irr::scene::IMeshBuffer& wide,
                     const irr::core::vector3df& offset) {
    prepare(sampleAmount);
    const auto vertexOf = [](const irr::scene::IMeshBuffer& mesh) {
        const auto* vertices = static_cast<const irr::video::S3DVertex*>(mesh.getVertices());
        return [vertices](int i) { return TerrainMeshPair::toTerrainVertex(vertices[i]); };
    };
    apron_->build(vertexOf(near), vertexOf(wide), static_cast<double>(offset.X), static_cast<double>(offset.Z),
                  vertices_);
    TerrainMeshPair::copyVertices(vertices_, *buffer_);
    buffer_->recalculateBoundingBox();
}

} // namespace skyvane
