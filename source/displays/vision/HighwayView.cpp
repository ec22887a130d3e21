#include "displays/vision/HighwayView.h"

#include "chart/geodesy/LocalFrame.h"
#include "core/Context.h"
#include "displays/materials/MaterialManager.h"
#include "displays/vision/SceneStage.h"
#include "procedures/ProcedureManager.h"

namespace skyvane {

HighwayView::HighwayView(Context* context)
    : context_(context),
      bars_(makeSceneMaterial(context->getIrrlichtDevice()->getVideoDriver(),
                              context->getMaterialManager()->getMaterialType("VertexAndTextureColor"))),
      edges_(bars_) {
    edges_.Wireframe = true;
    edges_.Thickness = 1.5f;
    takeMesh();
}

void HighwayView::takeMesh() {
    mesh_ = EngineRef<irr::scene::IMesh>::share(context_->getProcedureManager()->getActiveMesh());
}

void HighwayView::draw(SceneStage& stage, const ChartPosition& origin) {
    ProcedureManager* procedures = context_->getProcedureManager();
    if (!mesh_ || procedures->getProcedureCount() == 0)
        return;
    const irr::scene::IMeshBuffer* buffer = mesh_->getMeshBuffer(0);
    if (buffer->getIndexCount() == 0)
        return;
    stage.setPlace(ChartPosition2Vector3df64(origin, procedures->getActiveMeshPosition(), 0.0));
    stage.draw(buffer, bars_);
    stage.draw(buffer, edges_);
}

} // namespace skyvane
