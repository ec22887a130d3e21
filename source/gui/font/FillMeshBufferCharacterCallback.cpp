#include "gui/font/FillMeshBufferCharacterCallback.h"

#include <initializer_list>

namespace skyvane {

namespace {

constexpr irr::u32 verticesOfMesh = 65536;

} // namespace

FillMeshBufferCharacterCallback::FillMeshBufferCharacterCallback(irr::scene::SMeshBuffer& mesh, const Options& options)
    : mesh_(mesh), options_(options), lineStart_(mesh.Vertices.size()) {}

void FillMeshBufferCharacterCallback::OnCharacter(const FontCharacter& character, int, int x, int y) {
    const irr::u32 first = mesh_.Vertices.size();
    if (first + 4 > verticesOfMesh)
        return;
    const float left = static_cast<float>(x);
    const float top = static_cast<float>(y);
    const float right = left + static_cast<float>(character.width);
    const float bottom = top + static_cast<float>(character.height);
    const float lean = options_.italicGradient * static_cast<float>(character.height);
    const GlyphTexture& texture = character.texture;
    addVertex(left + lean, top, texture.left, texture.top);
    addVertex(left, bottom, texture.left, texture.bottom);
    addVertex(right + lean, top, texture.right, texture.top);
    addVertex(right, bottom, texture.right, texture.bottom);
    for (const irr::u32 corner : {0, 1, 2, 2, 1, 3})
        mesh_.Indices.push_back(static_cast<irr::u16>(first + corner));
}

void FillMeshBufferCharacterCallback::addVertex(float x, float y, float u, float v) {
    mesh_.Vertices.push_back(irr::video::S3DVertex(x, y, 0.0f, 0.0f, 0.0f, -1.0f, options_.color, u, v));
}

void FillMeshBufferCharacterCallback::OnLineFinished(int width) {
    const float shift = options_.centered ? 0.5f * static_cast<float>(options_.totalWidth - width) : 0.0f;
    for (; lineStart_ < mesh_.Vertices.size(); ++lineStart_) {
        irr::core::vector3df& position = mesh_.Vertices[lineStart_].Pos;
        position.X += shift;
        if (options_.matrix)
            options_.matrix->transformVect(position);
    }
}

} // namespace skyvane
