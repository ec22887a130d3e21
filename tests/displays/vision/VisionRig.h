#pragma once

#include "attitude/math/Matrix3x3.h"
#include "core/Context.h"
#include "core/Factories.h"
#include "core/ini/IniFile.h"
#include "core/time/Time.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/vision/Map3D.h"
#include "displays/vision/Map3DFactory.h"
#include "sensors/SensorFakes.h"
#include "sensors/records/Acceleration_Data.h"
#include "sensors/records/Altitude_Data.h"
#include "sensors/records/Attitude_Data.h"
#include "sensors/records/GroundSpeed_Data.h"
#include "sensors/records/Heading_Data.h"
#include "sensors/records/Position_Data.h"
#include "sensors/records/VerticalSpeed_Data.h"
#include "support/GlDevice.h"
#include "support/StartAnswers.h"
#include "terrain/TerrainFixture.h"
#include "terrain/TerrainManager.h"
#include "terrain/tree/TerrainStore.h"

#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <stdlib.h>

namespace skyvane {

constexpr double radiansPerDegree = 0.017453292519943295;

/// Each type with a level of its own.
class LevelledSensor : public FakeSensor {
public:
    WarningLevel getWarning(ISensorData::Type type) override {
        const auto found = levels.find(type);
        return found != levels.end() ? found->second : GOOD;
    }
    std::map<ISensorData::Type, WarningLevel> levels;
};

class LevelledSensorFactory : public NoSetupGUISensorFactory {
public:
    LevelledSensorFactory() : NoSetupGUISensorFactory("Levelled", {ISensorData::Position}) {}
    std::unique_ptr<ISensor> Create() override { return std::make_unique<LevelledSensor>(); }
};

/// A synthetic view in the real context, fed by one sensor that a test writes to. Terrain lies in the home's folder.
class VisionRig : public testing::Test {
protected:
    static constexpr int width = 480, height = 320;

    void SetUp() override {
        if (!gl)
            GTEST_SKIP() << "no display";
        char folder[] = "/tmp/skyvane_vision_XXXXXX";
        ASSERT_TRUE(mkdtemp(folder));
        home = folder;
        answerStartQuestions(folder);
        const std::string media =
            std::filesystem::read_symlink("/proc/self/exe").parent_path().parent_path().string() + "/media";
        std::filesystem::create_directory_symlink(media, home + "/media");
        context = std::make_unique<Context>(gl.device(), (home + "/skyvane").c_str(), false);
        registerPanelFactories(*context, *context->getPanelManager());
        registerProcedureFactories(*context, *context->getProcedureManager());
        loadSensors();
        fly({1.5, 42.5}, 1000.0, 0.0, 0.0, 0.0);
    }
    void TearDown() override {
        panel.reset();
        if (context)
            context->getPanelManager()->unload();
        context.reset();
        std::error_code ignored;
        std::filesystem::remove_all(home, ignored);
    }
    void loadSensors() {
        SensorManager& sensors = *context->getSensorManager();
        sensors.setBatteryFolder(home);
        addStandardDataFactories(sensors);
        sensors.addSensorFactory(std::make_unique<LevelledSensorFactory>());
        IniFile ini;
        std::string text = "SensorCount = 2\n";
        for (int type = 0; type < 21; ++type)
            text += "D" + std::to_string(type) + " = 1\n";
        ini.setFromString((text + "[S1]\nFactoryIndex = 0\n").c_str());
        sensors.loadSensorSettingsFromIni(&ini, false);
        sensor = dynamic_cast<LevelledSensor*>(sensors.getSensorInterface(1));
        ASSERT_NE(sensor, nullptr);
        sensor->put<GroundSpeed_Data>(ISensorData::GroundSpeed, 100.0, 1u);
        sensor->put<VerticalSpeed_Data>(ISensorData::VerticalSpeed, 0.0, 1u);
        sensor->put<Acceleration_Data>(ISensorData::Acceleration, 0.0, -9.81, 0.0, 1u);
    }
    /// Metres, degrees; nose up and right wing down positive.
    void fly(const ChartPosition& position, double altitude, double heading, double pitch, double bank) {
        sensor->put<Position_Data>(ISensorData::Position, position.longitude, position.latitude, 1u);
        sensor->put<Altitude_Data>(ISensorData::Altitude, altitude, 1u);
        sensor->put<Heading_Data>(ISensorData::Heading, heading, 1u);
        sensor->put<Attitude_Data>(ISensorData::Attitude, createYawMatrix(heading * radiansPerDegree) *
                                                              createPitchMatrix(-pitch * radiansPerDegree) *
                                                              createRollMatrix(-bank * radiansPerDegree));
    }
    /// Writes the ground of the whole earth at one height; finely around the places that the tests fly over.
    void saveFlatEarth(int metres) {
        const std::string tiles = home + "/.Skyvane/Terrain/";
        std::filesystem::remove_all(tiles);
        std::filesystem::create_directories(tiles);
        ASSERT_TRUE(saveTile(getTilePath(tiles, 0), flatTile(metres).data()));
        TerrainStore store(tiles, 1);
        linkTiles(tiles, *store.getRoot());
    }
    static void linkTiles(const std::string& tiles, ITerrainNode& node) {
        for (int i = 0; i < node.getChildrenCount(); ++i) {
            ITerrainNode& child = *node.getChild(i);
            if (child.getChildrenCount() == 0 || child.getNWEdge().longitude > 6.0 ||
                child.getSEEdge().longitude < 0.0 || child.getNWEdge().latitude < 38.0 ||
                child.getSEEdge().latitude > 48.0)
                continue;
            std::filesystem::create_hard_link(getTilePath(tiles, 0), getTilePath(tiles, child.getId()));
            linkTiles(tiles, child);
        }
    }
    /// The chart and the terrain are made with the (empty) page of panels, the view beside them, without bars.
    void makePanel(const std::string& options = "") {
        IniFile ini;
        ini.set("", "optimized", "0");
        context->getPanelManager()->loadPanelSettingsFromIni(&ini, nullptr, true, false);
        IniFile own;
        own.setFromString(
            ("[P0]\nrenderSpeedBar = 0\nrenderAltBar = 0\nrenderVSpeedBar = 0\nrenderTrackBar = 0\n" + options)
                .c_str());
        Map3DFactory factory(context.get());
        factory.loadSetupFromIni(&own, "P0");
        std::unique_ptr<IPanel> made = factory.Create();
        panel.reset(static_cast<Map3D*>(made.release()));
        panel->setFactory(nullptr);
    }
    void frame(const char* picture = nullptr) {
        gl.begin(irr::video::SColor(0xff000000));
        panel->render(area);
        context->getDrawer()->flush();
        gl.end();
        if (picture)
            gl.savePicture(picture);
    }
    TerrainManager& terrain() { return *context->getPanelManager()->getTerrainManager(); }
    /// Terrain updates until both meshes are those of where the aircraft is.
    bool waitForTerrain() {
        for (const unsigned start = MilliSecs(); MilliSecs() - start < 15000; Delay(20)) {
            terrain().Update();
            if (!terrain().isWholeMeshUndefined() && !terrain().isWholeWideMeshUndefined()) {
                panel->OnTerrainMeshExchanged();
                panel->OnWideTerrainMeshExchanged();
                return true;
            }
        }
        return false;
    }
    template <class Test>
    double share(const irr::core::rect<int>& part, Test test) const {
        int hits = 0;
        for (int y = part.UpperLeftCorner.Y; y < part.LowerRightCorner.Y; ++y)
            for (int x = part.UpperLeftCorner.X; x < part.LowerRightCorner.X; ++x)
                hits += test(gl.pixel(x, y)) ? 1 : 0;
        return static_cast<double>(hits) / part.getArea();
    }
    static bool isSky(irr::video::SColor c) { return c.getBlue() > c.getRed() + 20; }
    static bool isEarth(irr::video::SColor c) { return c.getRed() > c.getBlue() + 15; }
    static bool isRed(irr::video::SColor c) { return c.getRed() > 190 && c.getGreen() < 70 && c.getBlue() < 80; }
    static bool isAmber(irr::video::SColor c) { return c.getRed() > 190 && c.getGreen() > 140 && c.getBlue() < 70; }
    static bool isMagenta(irr::video::SColor c) { return c.getRed() > 180 && c.getGreen() < 90 && c.getBlue() > 180; }

    GlDevice gl{width, height};
    std::string home;
    std::unique_ptr<Context> context;
    LevelledSensor* sensor = nullptr;
    std::unique_ptr<Map3D> panel;
    irr::core::rect<int> area{0, 0, width, height};
};

} // namespace skyvane
