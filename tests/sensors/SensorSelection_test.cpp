#include "sensors/SensorSelection.h"

#include "sensors/SensorFakes.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

/// Asks for nothing and writes a port, as long as it is told to accept.
class AskingFactory : public FakeSensorFactory {
public:
    explicit AskingFactory(const bool* accepts) : accepts_(accepts) {}
    bool setup(IniFile* ini, std::string section) override {
        ini->set(section, "port", "4000");
        return *accepts_;
    }
    std::string getName() override { return "Asking"; }

private:
    const bool* accepts_;
};

class SensorSelectionTest : public testing::Test {
protected:
    SensorSelectionTest() {
        document.setFromString("SensorCount = 3\nD4 = 1\nD5 = 2\nD3 = 7\n[S1]\nFactoryIndex = 0\nofTheFormer = 1\n"
                               "[S2]\nFactoryIndex = 1\nFactoryName = Gone\n");
    }

    bool accepts = true;
    struct AskingRig : ManagerRig {
        explicit AskingRig(const bool* accepts) { manager.addSensorFactory(std::make_unique<AskingFactory>(accepts)); }
    } rig{&accepts};
    IniFile document;
    SensorSelection selection{rig.manager, &document};
};

} // namespace

TEST_F(SensorSelectionTest, TellsWhatTheDocumentHas) {
    EXPECT_EQ((std::vector<int>{0, 2}), selection.getFactories());
    EXPECT_EQ(2, selection.count());
    EXPECT_EQ("Fake", selection.getName(1));
    EXPECT_EQ("Gone", selection.getName(2));
    EXPECT_FALSE(selection.isKnown(2));
    EXPECT_EQ(1, selection.getDefault(ISensorData::Position));
    EXPECT_EQ(0, selection.getDefault(ISensorData::Acceleration));
    EXPECT_EQ(-1, selection.getUsed());
}

TEST_F(SensorSelectionTest, ASetupThatIsGivenUpChangesNothing) {
    const std::string before = document.toString();
    accepts = false;
    EXPECT_FALSE(selection.add(2));
    EXPECT_FALSE(selection.useOnly(2));
    EXPECT_FALSE(selection.add(1));
    EXPECT_FALSE(selection.add(99));
    EXPECT_FALSE(selection.edit(2));
    EXPECT_FALSE(selection.edit(0));
    EXPECT_EQ(before, document.toString());
}

TEST_F(SensorSelectionTest, AddedOnesStandAtTheEndAndRemovedOnesCloseTheGap) {
    ASSERT_TRUE(selection.add(2));
    EXPECT_EQ("4", document.get("", "SensorCount"));
    EXPECT_EQ("2", document.get("S3", "FactoryIndex"));
    EXPECT_EQ("Asking", document.get("S3", "FactoryName"));
    EXPECT_EQ("4000", document.get("S3", "port"));
    ASSERT_TRUE(selection.setDefault(ISensorData::Altitude, 3));
    selection.remove(1);
    EXPECT_EQ(2, selection.count());
    EXPECT_EQ("Gone", selection.getName(1));
    EXPECT_EQ("Asking", selection.getName(2));
    EXPECT_EQ(0, selection.getDefault(ISensorData::Position));
    EXPECT_EQ(2, selection.getDefault(ISensorData::Altitude));
    EXPECT_FALSE(document.isSectionAvailable("S3"));
    selection.remove(7);
    selection.remove(0);
    EXPECT_EQ(2, selection.count());
}

TEST_F(SensorSelectionTest, DefaultsGoOnlyToSensorsThatHaveTheType) {
    EXPECT_FALSE(selection.setDefault(ISensorData::Heading, 1));
    EXPECT_FALSE(selection.setDefault(ISensorData::Position, 2));
    EXPECT_FALSE(selection.setDefault(ISensorData::Position, 3));
    EXPECT_TRUE(selection.setDefault(ISensorData::Position, 0));
    selection.useForAll(1);
    EXPECT_EQ(1, selection.getDefault(ISensorData::Position));
    EXPECT_EQ(1, selection.getDefault(ISensorData::Altitude));
}

TEST_F(SensorSelectionTest, TheSimpleFormLeavesOneSensor) {
    ASSERT_TRUE(selection.useOnly(2));
    EXPECT_EQ(1, selection.count());
    EXPECT_EQ(1, selection.getUsed());
    EXPECT_EQ("Asking", selection.getName(1));
    EXPECT_FALSE(document.isSectionAvailable("S2"));
    EXPECT_FALSE(document.isAvailable("S1", "ofTheFormer"));
    EXPECT_EQ(0, selection.getDefault(ISensorData::Acceleration));
    EXPECT_EQ("2", document.get("", "SensorCount"));
}

} // namespace skyvane
