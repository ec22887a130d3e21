#pragma once

#include "core/engine/EngineRef.h"
#include "terrain/mesh/TerrainMesh.h"

#include <irrlicht.h>
#include <vector>

namespace skyvane {

/// Two engine meshes of the same triangles that take turns: one is drawn while the other is filled. Main thread only.
class TerrainMeshPair {
public:
    /// No meshes yet: getActive is null.
    TerrainMeshPair() = default;
    /// Vertices are white, black where nobody knows the height; texture coordinates run over a square grid, or are 0
    /// for other meshes.
    TerrainMeshPair(const std::vector<uint16_t>& indices, size_t vertexCount, int gridSide);

    /// Copies positions, normals and colours into the mesh that isn't drawn.
    void fill(const TerrainMesh& mesh, const irr::core::aabbox3df& box);
    /// The filled one is drawn from now on. Whoever draws the other has let go of it.
    void swap();
    /// Between our vertices and the engine's, whose colour tells whether the height is known. The buffer has room.
    static void copyVertices(const std::vector<TerrainVertex>& vertices, irr::scene::SMeshBuffer& buffer);
    static TerrainVertex toTerrainVertex(const irr::video::S3DVertex& vertex);

    irr::scene::IMesh* getActive() const { return active_.mesh.get(); }

private:
    struct Instance {
        EngineRef<irr::scene::SMesh> mesh;
        irr::scene::SMeshBuffer* buffer = nullptr; ///< The mesh's.
    };
    static Instance makeInstance(const std::vector<uint16_t>& indices, size_t vertexCount, int gridSide);

    Instance active_, buffer_;
};

} // namespace skyvane
