#include "terrain/TerrainManager.h"

#include "core/Factories.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "displays/IPanelFactory.h"
#include "displays/PanelManager.h"
#include "gui/windows/DialogFixture.h"
#include "sensors/SensorManager.h"
#include "terrain/TerrainFixture.h"
#include "terrain/files/BackgroundList.h"

#include <cmath>

namespace skyvane {
namespace {

std::vector<std::string> calls;

/// Notes what it is told of the terrain.
class TerrainProbe : public IPanel {
public:
    explicit TerrainProbe(Context* context) : IPanel(context) {}
    void OnPageChange() override {}
    void render(irr::core::rect<int>) override {}
    bool processEvent(irr::SEvent) override { return true; }
    std::string getName() override { return "Probe"; }
    void OnTerrainNodesDelete() override { calls.push_back("delete"); }
    void OnTerrainMeshExchanged() override { calls.push_back("exchanged"); }
    void OnWideTerrainNodesDelete() override { calls.push_back("wide delete"); }
    void OnWideTerrainMeshExchanged() override { calls.push_back("wide exchanged"); }
    void OnTerrainImageResult(const ChartPosition&, const ChartPosition&, irr::video::IImage* image, bool undefined,
                              float, float average, float) override {
        pixel = image->getPixel(3, 3).color;
        EXPECT_EQ(undefined, false);
        EXPECT_EQ(average, 800.0f);
    }
    irr::u32 pixel = 0;
};

class TerrainProbeFactory : public IPanelFactory {
public:
    explicit TerrainProbeFactory(Context* context) : context_(context) {}
    void loadSetupFromIni(IniFile*, std::string) override {}
    bool setup(IniFile*, std::string) override { return false; }
    std::unique_ptr<IPanel> Create() override {
        auto panel = std::make_unique<TerrainProbe>(context_);
        made = panel.get();
        return panel;
    }
    std::string getName() override { return "Probe"; }
    TerrainProbe* made = nullptr;

private:
    Context* context_;
};

class TerrainManagerTest : public DialogFixture {
protected:
    void SetUp() override {
        DialogFixture::SetUp();
        if (!context)
            return;
        calls.clear();
        folder_ = home + "/Tiles/";
        std::filesystem::create_directory(folder_);
        IniFile ini;
        ini.set("P0", "FactoryIndex", "0");
        ini.set("", "PanelCount", "1");
        auto factory = std::make_unique<TerrainProbeFactory>(context.get());
        TerrainProbeFactory* maker = factory.get();
        context->getPanelManager()->addPanelFactory(std::move(factory));
        context->getPanelManager()->loadPanelSettingsFromIni(&ini, nullptr, false, false);
        panel_ = maker->made;
        registerSensorFactories(*context, *context->getSensorManager());
        context->getSensorManager()->loadSensorSettingsFromIni(&ini, false);
        TerrainStore tree(folder_, 1);
        for (const double west : {1.0, 0.0})
            leaves_.push_back(findFittingNode(tree.getRoot(), {west, 43}, {west + 1, 42})->getId());
        saveTile(getTilePath(folder_, leaves_[0]), flatTile(800).data());
        saveTile(getTilePath(folder_, leaves_[1]), flatTile(200).data());
    }
    void makeManager(bool checkDirty) {
        terrain_ = std::make_unique<TerrainManager>(context.get(), folder_, checkDirty, TerrainManager::TREE_WORLD,
                                                    TerrainStore::DefaultCacheSize);
    }
    void TearDown() override {
        terrain_.reset();
        DialogFixture::TearDown();
    }
    /// Frames until that is so, at most for ten seconds.
    template <class Is>
    bool updateUntil(Is is) {
        for (const unsigned start = MilliSecs(); !is() && MilliSecs() - start < 10000; Delay(5))
            terrain_->Update();
        return is();
    }

    std::string folder_;
    std::vector<int> leaves_;
    TerrainProbe* panel_ = nullptr;
    std::unique_ptr<TerrainManager> terrain_;
};

TEST_P(TerrainManagerTest, GivesThePanelsMeshesAndImages) {
    TerrainStore tree(folder_, 1); // the mesh asks for a coarser level
    saveTile(getTilePath(folder_, findFittingNode(tree.getRoot(), {0, 44}, {4, 42})->getId()), flatTile(800).data());
    makeManager(false);
    EXPECT_TRUE(terrain_->isWholeMeshUndefined());
    EXPECT_TRUE(std::isinf(terrain_->getCurrentElevation()));
    context->getSensorManager()->startSimulation({1.5, 42.5}, 0, 1000);
    ASSERT_TRUE(updateUntil([] { return calls.size() >= 4; }));
    EXPECT_EQ(calls, (std::vector<std::string>{"delete", "exchanged", "wide delete", "wide exchanged"}));
    EXPECT_FALSE(terrain_->isWholeMeshUndefined());
    EXPECT_EQ(terrain_->getCurrentElevation(), 800.0f);
    EXPECT_EQ(terrain_->getMaxTerrainElevationInVicinity(), 800.0f);
    EXPECT_EQ(terrain_->getActiveMeshPosition().longitude, 1.5);
    irr::scene::IMeshBuffer* buffer = terrain_->getActiveMesh()->getMeshBuffer(0);
    EXPECT_EQ(buffer->getVertexCount(), 128u * 128u);
    EXPECT_EQ(buffer->getPosition(64 * 128 + 64).Y, 800.0f);
    EXPECT_EQ(buffer->getNormal(64 * 128 + 64), irr::core::vector3df(0, 1, 0));
    EXPECT_EQ(terrain_->getActiveWideMesh()->getMeshBuffer(0)->getIndexCount(), 194580u);

    const auto image = EngineRef<irr::video::IImage>::adopt(
        gl.driver()->createImage(irr::video::ECF_A8R8G8B8, irr::core::dimension2du(256, 256)));
    terrain_->requestTerrainImage(panel_, {1.2, 42.8}, {1.4, 42.6}, image.get());
    ASSERT_TRUE(updateUntil([&] { return panel_->pixel != 0; }));
    EXPECT_EQ(panel_->pixel, 0x80800000u + 12800u);
}

TEST_P(TerrainManagerTest, ComputesLevelsBehindADialog) {
    ASSERT_TRUE(setFolderDirty(folder_, true));
    makeManager(true);
    script->then([&] {
        picture("terrain-levels");
        click(L"Cancel");
    });
    terrain_->dirtyCheck(false);
    EXPECT_TRUE(isFolderDirty(folder_)) << "cancelled: again at the next start";
    terrain_->dirtyCheck(false); // once
    EXPECT_TRUE(isFolderDirty(folder_));
    for (int i = 0; i < 200; ++i)
        script->then([] {});
    terrain_->dirtyCheck(true);
    EXPECT_FALSE(isFolderDirty(folder_));
    EXPECT_TRUE(std::filesystem::exists(getTilePath(folder_, 0)));
    EXPECT_FALSE(terrain_->isThreadPaused());
}

INSTANTIATE_TEST_SUITE_P(Screens, TerrainManagerTest, testing::Values(irr::core::dimension2du(1280, 720)));

} // namespace
} // namespace skyvane
