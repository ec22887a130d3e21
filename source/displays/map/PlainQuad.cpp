#include "displays/map/PlainQuad.h"

namespace skyvane {

EngineRef<irr::scene::SMeshBuffer> makePlainQuad() {
    auto quad = EngineRef<irr::scene::SMeshBuffer>::adopt(new irr::scene::SMeshBuffer);
    irr::video::SMaterial& material = quad->Material;
    material.Lighting = false;
    material.BackfaceCulling = false;
    material.ZBuffer = irr::video::ECFN_NEVER;
    material.ZWriteEnable = false;
    material.AntiAliasing = irr::video::EAAM_OFF;
    material.BlendOperation = irr::video::EBO_ADD;
    for (irr::u32 layer = 0; layer < 2; ++layer)
        material.TextureLayer[layer].TextureWrapU = material.TextureLayer[layer].TextureWrapV =
            irr::video::ETC_CLAMP_TO_EDGE;
    for (irr::u32 i = 0; i < 4; ++i)
        quad->Vertices.push_back(irr::video::S3DVertex(0, 0, 0, 0, 0, -1, irr::video::SColor(0xffffffff),
                                                       static_cast<float>(i & 1), static_cast<float>(i >> 1)));
    for (const irr::u16 index : {0, 1, 2, 1, 3, 2})
        quad->Indices.push_back(index);
    return quad;
}

void placeQuad(irr::scene::SMeshBuffer& quad, const irr::core::vector2d<double> (&corners)[4],
               irr::video::SColor color) {
    for (irr::u32 i = 0; i < 4; ++i) {
        quad.Vertices[i].Pos.set(static_cast<float>(corners[i].X), static_cast<float>(corners[i].Y), 0.0f);
        quad.Vertices[i].Color = color;
    }
}

} // namespace skyvane
