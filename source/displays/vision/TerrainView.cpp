#include "displays/vision/TerrainView.h"

#include "chart/geodesy/LocalFrame.h"
#include "core/Context.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "displays/materials/MaterialManager.h"
#include "displays/materials/OGLES2TerrainCB.h"
#include "displays/vision/SceneStage.h"
#include "terrain/TerrainManager.h"
#include "terrain/mesh/NearMesh.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr float coveredDepth = 3000.0f;
constexpr double lightRadiansPerSecond = 0.1570796327;

} // namespace

TerrainView::TerrainView(Context* context)
    : context_(context), callback_(context->getMaterialManager()->getTerrainCallback()),
      gradient_(loadPanelImage(context, "media/terrainGradient.png")),
      material_(makeSceneMaterial(context->getIrrlichtDevice()->getVideoDriver(),
                                  context->getMaterialManager()->getMaterialType("Terrain"), gradient_.get())) {
    takeNearMesh();
    takeWideMesh();
}

TerrainManager* TerrainView::getManager() const {
    return context_->getPanelManager()->getTerrainManager();
}

void TerrainView::takeNearMesh() {
    const TerrainManager* terrain = getManager();
    near_ = EngineRef<irr::scene::IMesh>::share(terrain ? terrain->getActiveMesh() : nullptr);
    ++generation_;
    isApronWorn_ = true;
}

void TerrainView::takeWideMesh() {
    const TerrainManager* terrain = getManager();
    wide_ = EngineRef<irr::scene::IMesh>::share(terrain ? terrain->getActiveWideMesh() : nullptr);
    isApronWorn_ = true;
}

/// After a jump of the position the mesh is that of another place until the next one comes.
bool TerrainView::isNearShown(const TerrainManager& terrain, const ChartPosition& aircraft) const {
    if (!near_ || terrain.isWholeMeshUndefined())
        return false;
    const auto away = ChartPosition2Vector3df64(terrain.getActiveMeshPosition(), aircraft, 0.0);
    return std::max(std::abs(away.X), std::abs(away.Z)) < NearMesh::RadiusMetres;
}

bool TerrainView::isIncomplete(const ChartPosition& aircraft) const {
    const TerrainManager* terrain = getManager();
    return !terrain || !isNearShown(*terrain, aircraft) || terrain->isMeshIncomplete();
}

bool TerrainView::getDrawnHeight(const ChartPosition& position, float& metres) const {
    const TerrainManager* terrain = getManager();
    if (!terrain || !near_ || terrain->isWholeMeshUndefined())
        return false;
    const auto place = ChartPosition2Vector3df64(terrain->getActiveMeshPosition(), position, 0.0);
    const irr::scene::IMeshBuffer* buffer = near_->getMeshBuffer(0);
    return NearMeshHeights(terrain->getMeshSampleAmount())
        .sample(
            place.X, place.Z,
            [buffer](int vertex) -> const irr::core::vector3df& {
                return buffer->getPosition(static_cast<irr::u32>(vertex));
            },
            metres);
}

void TerrainView::setHeightLimits(const TerrainManager& terrain, double heightMetres, bool nearShown, bool wideShown) {
    float lowest = nearShown ? terrain.getMinTerrainElevationInVicinity() : terrain.getMinWideTerrainElevation();
    float highest = nearShown ? terrain.getMaxTerrainElevationInVicinity() : terrain.getMaxWideTerrainElevation();
    if (wideShown) {
        lowest = std::min(lowest, terrain.getMinWideTerrainElevation());
        highest = std::max(highest, terrain.getMaxWideTerrainElevation());
    }
    callback_->setHeightLimits(lowest, terrain.getAverageTerrainElevationInVicinity(), highest,
                               static_cast<float>(heightMetres));
    const double lap = lightRadiansPerSecond * Secs();
    callback_->setLightDirection({static_cast<float>(std::cos(lap)), -1.0f, static_cast<float>(std::sin(lap))});
}

irr::core::vector3df TerrainView::findNearOnWide(const TerrainManager& terrain) const {
    return ChartPosition2Vector3df(terrain.getActiveWideMeshPosition(), terrain.getActiveMeshPosition(), 0.0);
}

void TerrainView::renderNode(SceneStage& stage, const irr::scene::IMeshBuffer* mesh, const ChartPosition& origin,
                             const ChartPosition& centre) {
    stage.setPlace(ChartPosition2Vector3df64(origin, centre, 0.0));
    stage.draw(mesh, material_);
}

/// The near mesh first: it hides most of the wide one, which needn't be coloured there.
void TerrainView::draw(SceneStage& stage, const ChartPosition& origin, double heightMetres) {
    const TerrainManager* terrain = getManager();
    if (!terrain)
        return;
    const bool nearShown = isNearShown(*terrain, origin);
    const bool wideShown = wide_ && !terrain->isWholeWideMeshUndefined();
    if (!nearShown && !wideShown)
        return;
    setHeightLimits(*terrain, heightMetres, nearShown, wideShown);
    callback_->setCovered(0.0f, 0.0f, 0.0f, 0.0f);
    if (nearShown)
        renderNode(stage, near_->getMeshBuffer(0), origin, terrain->getActiveMeshPosition());
    if (!wideShown)
        return;
    const irr::scene::IMeshBuffer* wide = wide_->getMeshBuffer(0);
    if (nearShown) {
        const irr::core::vector3df middle = findNearOnWide(*terrain);
        if (isApronWorn_)
            apron_.fill(*near_->getMeshBuffer(0), terrain->getMeshSampleAmount(), *wide, middle);
        isApronWorn_ = false;
        renderNode(stage, apron_.getBuffer(), origin, terrain->getActiveMeshPosition());
        callback_->setCovered(middle.X, middle.Z, static_cast<float>(MeshApron::CoveredHalfSide), coveredDepth);
    }
    renderNode(stage, wide, origin, terrain->getActiveWideMeshPosition());
}

} // namespace skyvane
