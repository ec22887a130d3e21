#include "displays/vision/VisionReader.h"

#include "VisionRig.h"
#include "displays/visionmath/PfdReadings.h"
#include "procedures/ProcedureManager.h"
#include "procedures/direct/DirectProcedure.h"
#include "sensors/records/AirSpeed_Data.h"
#include "sensors/records/AngleOfAttack_Data.h"
#include "sensors/records/ExtendedHeading_Data.h"

#include <cmath>
#include <limits>

namespace skyvane {
namespace {

class VisionReaderTest : public VisionRig {
protected:
    PfdReadings read() {
        PfdReadings bars;
        readBars(*context, readVision(*context), bars);
        return bars;
    }
};

TEST_F(VisionReaderTest, tellsWhatIsMissingFromWhatFailed) {
    PfdReadings bars = read();
    EXPECT_FALSE(bars.hasAirSpeed);
    EXPECT_FALSE(bars.hasAngleOfAttack);
    EXPECT_FALSE(bars.magneticDegrees);
    EXPECT_LT(bars.nextFix.nauticalMiles, 0.0) << "no plan";
    EXPECT_FALSE(bars.bearingDegrees);

    sensor->put<AirSpeed_Data>(ISensorData::AirSpeed, 0.0, 0u);
    sensor->put<AngleOfAttack_Data>(ISensorData::AngleOfAttack, 0.0f, 1.0f, true, 0u);
    bars = read();
    EXPECT_FALSE(bars.hasAirSpeed) << "a record that was never written";
    EXPECT_FALSE(bars.hasAngleOfAttack);

    sensor->put<AirSpeed_Data>(ISensorData::AirSpeed, 99.0, 5u);
    sensor->put<AngleOfAttack_Data>(ISensorData::AngleOfAttack, 0.5f, 1.0f, true, 5u);
    sensor->put<ExtendedHeading_Data>(ISensorData::ExtendedHeading, 10.0f, 7.0f, 5u);
    sensor->levels = {{ISensorData::AirSpeed, ISensor::WRONG}, {ISensorData::AngleOfAttack, ISensor::MAYBE_WRONG}};
    bars = read();
    EXPECT_TRUE(bars.hasAirSpeed);
    EXPECT_EQ(bars.airSpeedKnots.flag, DialFlag::Failed);
    EXPECT_EQ(bars.angleOfAttack.flag, DialFlag::Doubtful);
    ASSERT_TRUE(bars.magneticDegrees);
    EXPECT_NEAR(*bars.magneticDegrees, 7.0, 1e-6);
}

TEST_F(VisionReaderTest, thePlanIsBelievedAsFarAsThePosition) {
    makePanel();
    ProcedureManager& plan = *context->getProcedureManager();
    IProcedureFactory* factory = plan.findProcedureFactorybyType(IProcedure::Direct);
    plan.addProcedure(std::make_unique<DirectProcedure>(ChartPosition{1.5, 42.7}, factory));
    plan.calculateCourseList();
    plan.Update(false);
    PfdReadings bars = read();
    ASSERT_TRUE(bars.bearingDegrees);
    EXPECT_NEAR(std::remainder(*bars.bearingDegrees, 360.0), 0.0, 2.0);
    EXPECT_NEAR(bars.nextFix.nauticalMiles, 12.0, 0.3);
    EXPECT_NEAR(bars.nextFix.seconds, 12.0 / 100.0 * 3600.0, 15.0) << "at 100 knots";
    EXPECT_TRUE(bars.nextFix.name.view().empty()) << "a place without a chart element";
    EXPECT_EQ(bars.nextFix.flag, DialFlag::Good);
    sensor->levels = {{ISensorData::Position, ISensor::WRONG}};
    bars = read();
    EXPECT_FALSE(bars.bearingDegrees);
    EXPECT_EQ(bars.nextFix.flag, DialFlag::Failed);
}

TEST_F(VisionReaderTest, noNumberThatIsNoneReachesTheBars) {
    for (const double bad : {std::nan(""), std::numeric_limits<double>::infinity()}) {
        sensor->put<AirSpeed_Data>(ISensorData::AirSpeed, bad, 5u);
        sensor->put<GroundSpeed_Data>(ISensorData::GroundSpeed, bad, 5u);
        sensor->put<Altitude_Data>(ISensorData::Altitude, bad, 5u);
        sensor->put<VerticalSpeed_Data>(ISensorData::VerticalSpeed, bad, 5u);
        sensor->put<Heading_Data>(ISensorData::Heading, bad, 5u);
        const PfdReadings bars = read();
        for (const auto* each : {&bars.airSpeedKnots, &bars.groundSpeedKnots, &bars.altitudeMetres,
                                 &bars.seaLevelHeightMetres, &bars.verticalSpeedMetres, &bars.headingDegrees})
            EXPECT_EQ(each->flag, DialFlag::Failed);
        makePanel("renderSpeedBar = 1\nrenderAltBar = 1\nrenderVSpeedBar = 1\nrenderTrackBar = 1\n");
        frame();
    }
}

/// The whole panel with its bars: a level of one source crosses its own bar and no other.
TEST_F(VisionReaderTest, aFailureCrossesItsOwnBar) {
    sensor->put<AirSpeed_Data>(ISensorData::AirSpeed, 99.0, 5u);
    makePanel("renderSpeedBar = 1\nrenderAltBar = 1\nrenderVSpeedBar = 1\nrenderTrackBar = 1\n");
    const int bar = width / 7;
    const irr::core::rect<int> speed(bar, height / 4, 2 * bar, height * 3 / 4);
    const irr::core::rect<int> altitude(width - 2 * bar, height / 4, width - bar, height * 3 / 4);
    const irr::core::rect<int> vertical(width - bar, height / 4, width, height * 3 / 4);
    const irr::core::rect<int> track(2 * bar, 0, width - 2 * bar, height / 9);
    const struct {
        ISensorData::Type type;
        const irr::core::rect<int>& place;
    } sources[] = {{ISensorData::AirSpeed, speed},
                   {ISensorData::Altitude, altitude},
                   {ISensorData::VerticalSpeed, vertical},
                   {ISensorData::Heading, track}};
    for (const auto& failed : sources) {
        sensor->levels = {{failed.type, ISensor::WRONG}};
        frame();
        for (const auto& each : sources) {
            const double crossed = share(each.place, isRed);
            if (each.type == failed.type) {
                EXPECT_GT(crossed, 0.03) << each.type;
            } else {
                EXPECT_LT(crossed, 0.005) << each.type << " while " << failed.type << " failed";
            }
        }
    }
}

} // namespace
} // namespace skyvane
