#pragma once

#include "core/engine/EngineRef.h"
#include "terrain/mesh/MeshApron.h"

#include <irrlicht.h>
#include <memory>

namespace skyvane {

/// The apron around the near terrain mesh as an engine's mesh, filled anew when one of the terrain meshes has been
/// exchanged. Main thread only.
class ApronView {
public:
    /// Both meshes are TerrainManager's; `sampleAmount` are the vertices per side of the near one, whose centre lies at
    /// `offset` from that of the wide one.
    void fill(const irr::scene::IMeshBuffer& near, int sampleAmount, const irr::scene::IMeshBuffer& wide,
              const irr::core::vector3df& offset);
    /// In metres from the near mesh's centre; null before the first filling.
    const irr::scene::IMeshBuffer* getBuffer() const { return buffer_.get(); }

private:
    void prepare(int sampleAmount);

    std::unique_ptr<MeshApron> apron_;
    int sampleAmount_ = 0;
    std::vector<TerrainVertex> vertices_;
    EngineRef<irr::scene::SMeshBuffer> buffer_;
};

} // namespace skyvane
