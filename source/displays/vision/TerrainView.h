#pragma once

#include "chart/geodesy/ChartPosition.h"
#include "core/engine/EngineRef.h"
#include "displays/instruments/PanelTexture.h"
#include "displays/vision/ApronView.h"
#include "terrain/mesh/NearMeshHeights.h"

#include <irrlicht.h>

namespace skyvane {

class Context;
class OGLES2TerrainCB;
class SceneStage;
class TerrainManager;

/// The ground around the aircraft: the near mesh, the wide one beyond it, and an apron that leads from one to the
/// other. The wide one sinks out of sight where these cover it. Colours warn by how far the aircraft is above. Main
/// thread only.
class TerrainView {
public:
    explicit TerrainView(Context* context);

    // The manager is about to exchange a mesh, and has done so.
    void dropNearMesh() { near_.reset(); }
    void takeNearMesh();
    void dropWideMesh() { wide_.reset(); }
    void takeWideMesh();

    /// `origin` is the scene's; the aircraft's height in metres. Nothing without terrain.
    void draw(SceneStage& stage, const ChartPosition& origin, double heightMetres);

    /// Some ground around the aircraft isn't known: what looks like plain ground or sea may be a mountain.
    bool isIncomplete(const ChartPosition& aircraft) const;
    /// The height of the ground as it is drawn near the aircraft; false where the near mesh doesn't reach.
    bool getDrawnHeight(const ChartPosition& position, float& metres) const;
    /// Raised by each exchange of the near mesh.
    unsigned getGeneration() const { return generation_; }

private:
    TerrainManager* getManager() const;
    bool isNearShown(const TerrainManager& terrain, const ChartPosition& aircraft) const;
    void setHeightLimits(const TerrainManager& terrain, double heightMetres, bool nearShown, bool wideShown);
    /// Where the near mesh's centre lies on the wide one.
    irr::core::vector3df findNearOnWide(const TerrainManager& terrain) const;
    void renderNode(SceneStage& stage, const irr::scene::IMeshBuffer* mesh, const ChartPosition& origin,
                    const ChartPosition& centre);

    Context* context_;
    OGLES2TerrainCB* callback_;
    PanelTexture gradient_;
    irr::video::SMaterial material_;
    EngineRef<irr::scene::IMesh> near_, wide_;
    ApronView apron_;
    bool isApronWorn_ = true;
    unsigned generation_ = 0;
};

} // namespace skyvane
