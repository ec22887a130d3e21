#include "displays/vision/ElementScene.h"

#include "chart/areas/AreaGrid.h"
#include "chart/areas/AreaLeaf.h"
#include "chart/elements/IChartElement.h"
#include "chart/geodesy/LocalFrame.h"
#include "chart/store/IChart.h"
#include "core/Context.h"
#include "core/text/Utf8.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "displays/map/IChartElementRenderer.h"
#include "displays/materials/MaterialManager.h"
#include "displays/vision/Map3D.h"
#include "displays/visionmath/ScenePlaces.h"
#include "gui/font/FlexibleFont.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr unsigned leastMilliseconds = 700;
constexpr double movedMetres = 250.0, climbedMetres = 25.0;
constexpr size_t mostLabels = 400;
constexpr unsigned typeBits = 0x3f;

EngineRef<irr::scene::SMeshBuffer> makeBuffer() {
    return EngineRef<irr::scene::SMeshBuffer>::adopt(new irr::scene::SMeshBuffer);
}

} // namespace

ElementScene::ElementScene(Context* context)
    : context_(context), groundMesh_(makeBuffer()), mesh_(makeBuffer()),
      groundMaterial_(makeSceneMaterial(context->getIrrlichtDevice()->getVideoDriver(),
                                        context->getMaterialManager()->getMaterialType("VertexAndTextureColor"))),
      material_(groundMaterial_) {
    // What lies on the ground wins against it.
    groundMaterial_.PolygonOffsetDirection = irr::video::EPO_FRONT;
    groundMaterial_.PolygonOffsetFactor = 7;
    groundMaterial_.ZWriteEnable = false;
}

bool ElementScene::isWorn(const TerrainView& terrain, const ChartPosition& aircraft, double heightMetres) const {
    if (!valid_)
        return true;
    if (TimeDiff(MilliSecs(), collectedMilliseconds_) < leastMilliseconds)
        return false;
    const double moved = ChartPosition2Vector3df64(origin_, aircraft, 0.0).getLength();
    return !(moved < movedMetres) || std::abs(heightMetres - heightMetres_) > climbedMetres ||
           terrain.getGeneration() != generation_;
}

void ElementScene::update(Map3D& map, const TerrainView& terrain, const ChartPosition& aircraft, double heightMetres,
                          double sightMetres) {
    if (!isWorn(terrain, aircraft, heightMetres))
        return;
    valid_ = true;
    collectedMilliseconds_ = MilliSecs();
    generation_ = terrain.getGeneration();
    origin_ = aircraft;
    heightMetres_ = heightMetres;
    terrain_ = &terrain;
    ground_.clear();
    shapes_.clear();
    labels_.clear();
    renderMapElements(map, sightMetres);
    terrain_ = nullptr;
    fill(*groundMesh_, ground_);
    fill(*mesh_, shapes_);
}

void ElementScene::renderMapElements(Map3D& map, double sightMetres) {
    IChart* chart = context_->getPanelManager()->getChart();
    if (!chart)
        return;
    const ElementBox box = calcElementBox(origin_, sightMetres);
    AreaGridView(box.nw, box.se).forEachLeaf([&](int index) {
        const IArea* area = chart->getArea(index);
        const AreaLeaf* leaf = area ? area->asLeaf() : nullptr;
        if (!leaf || !leaf->isSane())
            return;
        for (size_t i = 0; i < leaf->getElements().size(); ++i) {
            const auto* bytes =
                reinterpret_cast<const char*>(leaf->getStaticBytes().data() + i * AreaLeaf::BytesPerElement);
            const auto type = static_cast<IChartElement::Type>(static_cast<unsigned char>(bytes[0]) & typeBits);
            IChartElementRenderer* renderer = context_->getChartElementRenderer(type);
            const int id = leaf->getElements()[i];
            if (!renderer->isPotentiallyRenderable3D(id, &map, bytes))
                continue;
            const IChartElement* element = chart->getChartElement(id);
            if (element && element->getType() == type &&
                getDistance(getPlace(element->getPosition(), 0.0)) < sightMetres)
                renderer->render3D(element, &map, id);
        }
    });
}

SceneShapes::Place ElementScene::getPlace(const ChartPosition& position, double heightMetres) const {
    return ChartPosition2Vector3df64(origin_, position, heightMetres);
}

double ElementScene::getGround(const SceneShapes::Place& place, double otherwise) const {
    float height = 0.0f;
    return terrain_ && terrain_->getDrawnHeight(Vector3df642ChartPosition(origin_, place), height)
               ? static_cast<double>(height)
               : otherwise;
}

/// Looks along the way from the aircraft for ground that stands in it.
bool ElementScene::isHidden(const SceneShapes::Place& place) const {
    constexpr int steps = 24;
    constexpr double clearMetres = 25.0;
    const SceneShapes::Place eye(0.0, heightMetres_, 0.0), way = place + SceneShapes::Place(0, clearMetres, 0) - eye;
    for (int i = 1; i < steps; ++i) {
        const SceneShapes::Place there = eye + way * (static_cast<double>(i) / steps);
        if (getGround(there, -1e9) > there.Y)
            return true;
    }
    return false;
}

void ElementScene::addLabel(const SceneShapes::Place& place, const std::string& text, irr::video::SColor color,
                            int importance, int id) {
    FlexibleFont* font = context_->getFlexibleFont();
    if (!font || text.empty() || labels_.size() >= mostLabels || isHidden(place))
        return;
    SceneLabel label;
    const std::wstring wide = decodeUtf8(text);
    const size_t length = std::min(wide.size(), SceneLabel::mostCharacters);
    std::copy_n(wide.begin(), length, label.text.begin());
    label.place = place;
    label.size = font->getDimensionWithTabs(label.text.data(), font->getDefaultTabSize(), {1.0f, 1.0f});
    label.color = color;
    label.importance = importance;
    label.id = id;
    labels_.push_back(label);
}

void ElementScene::fill(irr::scene::SMeshBuffer& mesh, const SceneShapes& shapes) {
    mesh.Vertices.set_used(static_cast<irr::u32>(shapes.vertices.size()));
    irr::video::S3DVertex* vertex = mesh.Vertices.pointer();
    for (const SceneShapes::Vertex& source : shapes.vertices)
        *vertex++ =
            irr::video::S3DVertex(source.place, {0.0f, 1.0f, 0.0f}, irr::video::SColor(source.argb), {0.5f, 0.5f});
    mesh.Indices.set_used(static_cast<irr::u32>(shapes.indices.size()));
    std::copy(shapes.indices.begin(), shapes.indices.end(), mesh.Indices.pointer());
    mesh.recalculateBoundingBox();
    mesh.setDirty();
}

void ElementScene::draw(SceneStage& stage, const ChartPosition& aircraft) {
    stage.setPlace(ChartPosition2Vector3df64(aircraft, origin_, 0.0));
    if (groundMesh_->getIndexCount() > 0)
        stage.draw(groundMesh_.get(), groundMaterial_);
    if (mesh_->getIndexCount() > 0)
        stage.draw(mesh_.get(), material_);
}

} // namespace skyvane
