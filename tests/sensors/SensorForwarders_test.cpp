#include "sensors/SensorFakes.h"
#include "sensors/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

struct ForwarderRig : ManagerRig {
    ForwarderRig() { host.configPath = folder.path("config.ini"); }
    void loadFromDisk() {
        IniFile ini(host.configPath);
        manager.loadSensorSettingsFromIni(&ini, false);
    }
    std::string onDisk(const std::string& section, const std::string& key) {
        IniFile ini(host.configPath);
        return ini.isAvailable(section, key) ? ini.get(section, key) : "absent";
    }

    TemporaryFolder folder;
};

TEST(SensorForwarders, addingEditsTheDocumentAndKeepsTheRest) {
    ForwarderRig rig;
    rig.folder.write("config.ini", "other=kept\nForwarderCount=1\n[F0]\nForwarderFactory=0\n[F1]\nstale=1\n");
    rig.loadFromDisk();
    rig.manager.addSensorForwarder(0, std::make_unique<FakeForwarder>(&rig.forwarded));
    EXPECT_EQ(rig.manager.getSensorForwarderCount(), 2);
    EXPECT_EQ(rig.onDisk("", "ForwarderCount"), "2");
    EXPECT_EQ(rig.onDisk("", "other"), "kept");
    EXPECT_EQ(rig.onDisk("F1", "ForwarderFactory"), "0");
    EXPECT_EQ(rig.onDisk("F1", "ForwarderFactoryName"), "Fake");
    EXPECT_EQ(rig.onDisk("F1", "target"), "here");
    EXPECT_EQ(rig.onDisk("F1", "stale"), "absent");
    rig.loadFromDisk();
    EXPECT_EQ(rig.manager.getSensorForwarderCount(), 2);
    rig.manager.addSensorForwarder(7, std::make_unique<FakeForwarder>(&rig.forwarded));
    EXPECT_EQ(rig.manager.getSensorForwarderCount(), 2) << "there is no such factory";
}

TEST(SensorForwarders, deletingMovesTheLaterSectionsDown) {
    ForwarderRig rig;
    // F1 isn't restored, so the forwarder at 1 belongs to F2.
    rig.folder.write("config.ini", "ForwarderCount=4294967295\n[F0]\nForwarderFactory=0\nname=a\n"
                                   "[F1]\nForwarderFactory=1\nname=b\n[F2]\nForwarderFactory=0\nname=c\n"
                                   "[F3]\nForwarderFactory=0\nname=d\n");
    rig.loadFromDisk();
    ASSERT_EQ(rig.manager.getSensorForwarderCount(), 3);
    rig.manager.deleteSensorForwarder(0);
    EXPECT_EQ(rig.onDisk("", "ForwarderCount"), "3");
    EXPECT_EQ(rig.onDisk("F0", "name"), "b");
    EXPECT_EQ(rig.onDisk("F2", "name"), "d");
    EXPECT_EQ(rig.onDisk("F3", "name"), "absent");
    rig.manager.deleteSensorForwarder(0);
    EXPECT_EQ(rig.onDisk("F0", "name"), "b");
    EXPECT_EQ(rig.onDisk("F1", "name"), "d");
    EXPECT_EQ(rig.onDisk("", "ForwarderCount"), "2");
    rig.manager.deleteSensorForwarder(5);
    EXPECT_EQ(rig.manager.getSensorForwarderCount(), 1);
}

TEST(SensorForwarders, pauseReachesAll) {
    ForwarderRig rig;
    rig.folder.write("config.ini", "ForwarderCount=2\n[F0]\nForwarderFactory=0\n[F1]\nForwarderFactory=0\n");
    rig.loadFromDisk();
    rig.manager.setAllForwarderPause(true);
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(static_cast<FakeForwarder*>(rig.manager.getSensorForwarder(i))->paused);
    EXPECT_EQ(rig.manager.getSensorForwarder(2), nullptr);
}

} // namespace
} // namespace skyvane
