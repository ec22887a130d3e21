#pragma once

#include "core/engine/EngineRef.h"
#include "procedures/highway/Highway.h"

#include <irrlicht.h>

namespace skyvane {

/// The shape of a rectangle from a mesh; an empty one for null.
GateShape readGateShape(irr::scene::IMesh* mesh);

/// Two engine meshes of the highway that take turns: one is drawn while the other is filled. Main thread only.
class HighwayMeshes {
public:
    HighwayMeshes();

    /// Copies the arrays into the mesh that isn't drawn.
    void fill(const HighwayMesh& mesh);
    /// The filled one is drawn from now on. Whoever draws the other has let go of it.
    void swap();
    irr::scene::IMesh* getActive() const { return active_.get(); }

private:
    EngineRef<irr::scene::SMesh> active_, buffer_;
};

} // namespace skyvane
