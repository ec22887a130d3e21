#include "displays/gauges/DialFlag.h"
#include "displays/gauges/FlagMasks.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

DialEvidence evidence(ISensor::WarningLevel warning) {
    return {true, true, warning, false};
}

TEST(DialFlag, followsTheSensorsWord) {
    EXPECT_EQ(decideDialFlag(evidence(ISensor::GOOD)), DialFlag::Good);
    EXPECT_EQ(decideDialFlag(evidence(ISensor::MAYBE_WRONG)), DialFlag::Doubtful);
    EXPECT_EQ(decideDialFlag(evidence(ISensor::WRONG)), DialFlag::Failed);
    EXPECT_EQ(decideDialFlag(evidence(static_cast<ISensor::WarningLevel>(7))), DialFlag::Failed);
    EXPECT_EQ(decideDialFlag({}), DialFlag::Failed);
}

TEST(DialFlag, believesNoSensorWithoutANumber) {
    for (bool simulating : {false, true}) {
        EXPECT_EQ(decideDialFlag({false, true, ISensor::GOOD, simulating}), DialFlag::Failed);
        EXPECT_EQ(decideDialFlag({true, false, ISensor::GOOD, simulating}), DialFlag::Failed);
    }
    EXPECT_FALSE(isValueShown(DialFlag::Failed));
}

TEST(DialFlag, aSimulatedValueStaysAndSaysSo) {
    EXPECT_EQ(decideDialFlag({true, true, ISensor::WRONG, true}), DialFlag::Simulated);
    EXPECT_TRUE(isValueShown(DialFlag::Simulated));
}

TEST(FlagMasks, crossRunsOverTheWholeFaceAndTheRingLeavesItFree) {
    for (double t : {0.25, 0.4, 0.5, 0.6, 0.75}) {
        EXPECT_EQ(crossCoverage(t, t, 0.005), 1.0);
        EXPECT_EQ(crossCoverage(t, 1 - t, 0.005), 1.0);
    }
    EXPECT_EQ(crossCoverage(0.5, 0.3, 0.005), 0.0);
    EXPECT_EQ(crossCoverage(0.02, 0.02, 0.005), 0.0);
    for (double radius : {0.0, 0.2, 0.4, 0.49})
        EXPECT_EQ(ringCoverage(0.5 + radius, 0.5, 0.005), 0.0) << radius;
    EXPECT_EQ(ringCoverage(0.5, 0.5 + 0.45, 0.005), 1.0);
}

} // namespace
} // namespace skyvane
