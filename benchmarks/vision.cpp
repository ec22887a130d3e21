// The synthetic view: a whole panel against a bare draw of the same meshes and as many quads, frames in which a terrain
// mesh is exchanged against the others, and what a steady frame allocates.
#include "Bench.h"
#include "DemoProgram.h"

#include "chart/geodesy/LocalFrame.h"
#include "core/Context.h"
#include "core/FrameLoop.h"
#include "core/ini/IniFile.h"
#include "core/text/Numbers.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/layout/PageLayout.h"
#include "displays/materials/MaterialManager.h"
#include "displays/materials/OGLES2TerrainCB.h"
#include "displays/vision/SceneStage.h"
#include "displays/vision/SkyView.h"
#include "gui/menu/MenuBar.h"
#include "procedures/ProcedureManager.h"
#include "procedures/direct/DirectProcedure.h"
#include "sensors/SensorManager.h"
#include "support/AllocationCounter.h"
#include "terrain/TerrainManager.h"
#include "terrain/files/TerrainTile.h"
#include "terrain/tree/TerrainStore.h"

#include <GL/gl.h>
#include <algorithm>
#include <chrono>
#include <cmath>
#include <filesystem>
#include <thread>
#include <unistd.h>

namespace skyvane {
namespace {

const ChartPosition start(331.4, 42.4);
constexpr int altitudeMetres = 2600;
constexpr int headingDegrees = 30;

/// Mountains for the whole earth and, more and more finely, around the start, in the home that the program is going to
/// have.
void writeTerrain() {
    const std::string folder = benchBuildFolder() + "/bench-home-" + std::to_string(::getpid()) + "/.Skyvane/Terrain/";
    std::filesystem::create_directories(folder);
    std::vector<int16_t> tile(TileSamples);
    for (int row = 0; row < TileSide; ++row)
        for (int column = 0; column < TileSide; ++column)
            tile[static_cast<size_t>(row * TileSide + column)] = static_cast<int16_t>(
                1300 + 700 * std::sin(row * 0.031) * std::cos(column * 0.023) + 300 * std::sin((row + column) * 0.07));
    TerrainStore store(folder, 1);
    // One tile of each level, as the wide mesh and the near one need them, and the neighbours that the flight comes to.
    for (const ITerrainNode* node :
         {static_cast<ITerrainNode*>(store.getRoot()), findFittingNode(store.getRoot(), {331, 43}, {332, 42}),
          findFittingNode(store.getRoot(), {330, 43}, {332, 42}),
          findFittingNode(store.getRoot(), {328, 44}, {332, 42}),
          findFittingNode(store.getRoot(), {332, 44}, {336, 42}),
          findFittingNode(store.getRoot(), {328, 44}, {336, 40}),
          findFittingNode(store.getRoot(), {320, 44}, {336, 36})})
        saveTile(getTilePath(folder, node->getId()), tile.data());
}

/// The demo's configuration with one synthetic view that fills the page.
std::string writeConfig() {
    IniFile config("tools/demo/config.ini");
    for (int panel = 0; config.isSectionAvailable("P" + toText(panel)); ++panel)
        config.removeSection("P" + toText(panel));
    for (const auto& [key, value] : {std::pair("FactoryIndex", "3"),
                                     {"ViewPortSX", "0"},
                                     {"ViewPortSY", "0"},
                                     {"ViewPortTX", "1"},
                                     {"ViewPortTY", "1"}})
        config.set("P0", key, value);
    config.set("", "PanelCount", "1");
    const std::string path = benchBuildFolder() + "/bench-vision.ini";
    return config.Save(path) ? path : std::string();
}

/// The program over mountains, with a plan to fly along.
class Flight {
public:
    Flight() : program_((writeTerrain(), writeConfig())) {}

    bool begin() {
        if (!program_.isGood())
            return false;
        panels().setAcceptMessagesEnabled(false);
        program_.begin();
        moveTo(0.0);
        ProcedureManager& plan = *context().getProcedureManager();
        plan.addProcedure(std::make_unique<DirectProcedure>(Vector3df642ChartPosition(start, along(60000.0)),
                                                            plan.findProcedureFactorybyType(IProcedure::Direct)));
        plan.calculateCourseList();
        return settle();
    }
    /// Along the heading.
    void moveTo(double metres) {
        const ChartPosition place = Vector3df642ChartPosition(start, along(metres));
        context().getSensorManager()->startSimulation(place, headingDegrees, altitudeMetres);
    }
    double frameSeconds() { return program_.frameSeconds(); }
    double panelSeconds() {
        return drawSeconds([this] { panels().Render(); });
    }
    double drawSeconds(const std::function<void()>& draw) {
        irr::IrrlichtDevice* device = context().getIrrlichtDevice();
        return secondsOf([&] {
            device->run();
            device->getVideoDriver()->beginScene(true, true, irr::video::SColor(0xff000000));
            draw();
            context().getDrawer()->flush();
            device->getVideoDriver()->endScene();
            glFinish();
        });
    }
    Context& context() { return program_.getContext(); }
    PanelManager& panels() { return *context().getPanelManager(); }
    TerrainManager* terrain() { return panels().getTerrainManager(); }

private:
    static irr::core::vector3d<double> along(double metres) {
        const double heading = headingDegrees / DegreesPerRadian;
        return {std::sin(heading) * metres, 0.0, std::cos(heading) * metres};
    }
    bool settle() {
        ProcedureManager& plan = *context().getProcedureManager();
        for (int i = 0; i < 300; ++i) {
            program_.frameSeconds();
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
            const bool hasTerrain =
                terrain() && !terrain()->isWholeMeshUndefined() && !terrain()->isWholeWideMeshUndefined();
            if (hasTerrain && plan.getActiveMesh()->getMeshBuffer(0)->getIndexCount() > 0 && i > 60)
                return true;
        }
        return false;
    }

    DemoProgram program_;
};

/// The same meshes with the same shader, as few calls as that takes, and quads for all else that the panel draws.
class BareScene {
public:
    explicit BareScene(Flight& flight)
        : flight_(flight), driver_(flight.context().getIrrlichtDevice()->getVideoDriver()), stage_(driver_),
          sky_(&flight.context()),
          gradient_(driver_->getTexture(flight.context().getPath("media/terrainGradient.png").c_str())),
          terrain_(material("Terrain", gradient_)), bars_(material("VertexAndTextureColor", nullptr)) {
        pose_ = lookAt({0.0, altitudeMetres, 0.0}, headingDegrees, 0.0, 0.0);
        const PanelArea area = MenuBar::panelArea(flight.context().getScreenMetrics());
        panel_ = irr::core::rect<int>(0, area.top, area.width, area.bottom);
    }

    /// What the panel drew in its last frame, less the meshes.
    void countQuads(unsigned panelTriangles) {
        flight_.drawSeconds([this] { draw(); });
        const unsigned bare = driver_->getPrimitiveCountDrawn(0);
        quads_ = panelTriangles > bare ? (panelTriangles - bare) / 2 : 0;
    }
    void draw() {
        stage_.begin(pose_, panel_);
        TerrainManager& terrain = *flight_.terrain();
        OGLES2TerrainCB* callback = flight_.context().getMaterialManager()->getTerrainCallback();
        callback->setCovered(0.0f, 0.0f, 0.0f, 0.0f);
        callback->setHeightLimits(0.0f, 1300.0f, 2300.0f, altitudeMetres);
        put(terrain.getActiveMesh(), terrain.getActiveMeshPosition(), terrain_);
        put(terrain.getActiveWideMesh(), terrain.getActiveWideMeshPosition(), terrain_);
        sky_.draw(stage_, true);
        ProcedureManager& plan = *flight_.context().getProcedureManager();
        put(plan.getActiveMesh(), plan.getActiveMeshPosition(), bars_);
        stage_.end();
        drawQuads();
    }

private:
    irr::video::SMaterial material(const char* name, irr::video::ITexture* texture) {
        return makeSceneMaterial(driver_, flight_.context().getMaterialManager()->getMaterialType(name), texture);
    }
    void put(irr::scene::IMesh* mesh, const ChartPosition& centre, const irr::video::SMaterial& material) {
        stage_.setPlace(ChartPosition2Vector3df64(start, centre, 0.0));
        stage_.draw(mesh->getMeshBuffer(0), material);
    }
    void drawQuads() {
        Drawer2D* drawer = flight_.context().getDrawer();
        constexpr int size = 12, perRow = 60;
        for (unsigned i = 0; i < quads_; ++i) {
            const int x = static_cast<int>(i % perRow) * 16 + 100, y = static_cast<int>(i / perRow % 30) * 16 + 60;
            drawer->drawFilledRect({x, y, x + size, y + size}, irr::video::SColor(0x80dcdcdc));
        }
        drawer->flush();
    }

    Flight& flight_;
    irr::video::IVideoDriver* driver_;
    SceneStage stage_;
    SkyView sky_;
    irr::video::ITexture* gradient_;
    irr::video::SMaterial terrain_, bars_;
    ViewPose pose_;
    irr::core::rect<int> panel_;
    unsigned quads_ = 0;
};

double visionFrame(bool smoke) {
    Flight flight;
    if (!flight.begin())
        return std::nan("");
    BareScene bare(flight);
    for (int i = 0; i < 3; ++i)
        flight.panelSeconds();
    bare.countQuads(flight.context().getIrrlichtDevice()->getVideoDriver()->getPrimitiveCountDrawn(0));
    return ratioOfMedians(
        smoke ? 3 : 120, [&] { return flight.panelSeconds(); },
        [&] { return flight.drawSeconds([&bare] { bare.draw(); }); });
}

double percentile99(std::vector<double> values) {
    if (values.empty())
        return std::nan("");
    std::sort(values.begin(), values.end());
    return values[static_cast<size_t>(std::ceil(0.99 * static_cast<double>(values.size()))) - 1];
}

/// Flies on by 20 m a frame, so that every fifteenth frame or so finds a new mesh.
double visionExchange(bool smoke) {
    Flight flight;
    if (!flight.begin())
        return std::nan("");
    std::vector<double> exchanging, others;
    const size_t wanted = smoke ? 1 : 30;
    const irr::scene::IMesh* mesh = flight.terrain()->getActiveMesh();
    for (int i = 0; i < 4000 && exchanging.size() < wanted; ++i) {
        flight.moveTo(20.0 * i);
        const double seconds = flight.frameSeconds();
        const bool exchanged = flight.terrain()->getActiveMesh() != mesh;
        mesh = flight.terrain()->getActiveMesh();
        (exchanged ? exchanging : others).push_back(seconds);
    }
    return percentile99(exchanging) / percentile99(others);
}

double visionAllocations(bool) {
    Flight flight;
    if (!flight.begin())
        return std::nan("");
    std::vector<double> counts;
    for (int i = 0; i < 20; ++i)
        flight.drawSeconds([&] {
            const AllocationCounter allocations;
            flight.panels().Render();
            counts.push_back(static_cast<double>(allocations.count()));
        });
    return median(counts);
}

} // namespace

std::vector<Bench> visionBenches() {
    return {{"vision.frame", Bench::Bound::AtMost, 1.3, visionFrame},
            {"vision.exchange", Bench::Bound::AtMost, 1.5, visionExchange},
            {"vision.allocations", Bench::Bound::AtMost, 20.0, visionAllocations}};
}

} // namespace skyvane
