#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/engine/EngineRef.h"

#include <irrlicht.h>

namespace skyvane {

class Context;
class SceneStage;

/// The highway in the sky: the rectangles along the plan, as ProcedureManager's thread has placed them.
class HighwayView {
public:
    explicit HighwayView(Context* context);

    // The manager is about to exchange the mesh, and has done so.
    void dropMesh() { mesh_.reset(); }
    void takeMesh();
    /// Nothing without a plan.
    void draw(SceneStage& stage, const ChartPosition& origin);

private:
    Context* context_;
    irr::video::SMaterial bars_;
    irr::video::SMaterial edges_; ///< Keep far rectangles in sight.
    EngineRef<irr::scene::IMesh> mesh_;
};

} // namespace skyvane
