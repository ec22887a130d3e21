#include "sensors/SampleList.h"
#include "sensors/SensorFakes.h"
#include "sensors/records/Raw_Data.h"
#include "sensors/records/Traffic_Data.h"
#include "sensors/records/UATUplink_Data.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

TEST(SteadyState, serializingAllocatesNothingFromTheSecondCallOn) {
    FakeHost host;
    SensorManager manager(&host);
    addStandardDataFactories(manager);
    for (int type = 0; type < ISensorData::TypeCount; ++type) {
        auto record = manager.createSensorData(static_cast<ISensorData::Type>(type));
        if (auto* raw = dynamic_cast<Raw_Data*>(record.get()))
            raw->text.assign(5000, '$');
        if (auto* traffic = dynamic_cast<Traffic_Data*>(record.get()))
            for (uint32_t address = 0; address < 100; ++address)
                traffic->elements[address] = std::make_unique<TrafficElement>();
        if (auto* uplink = dynamic_cast<UATUplink_Data*>(record.get()))
            uplink->messages.assign(20, std::vector<uint8_t>(432));
        int length = 0;
        record->serialize(&length);
        AllocationCounter allocations;
        record->serialize(&length);
        EXPECT_EQ(allocations.count(), 0u) << "type " << type;
    }
}

TEST(SteadyState, fullSampleListsAllocateNothing) {
    SampleList<double, double> rates(0.0, 0.0, nullptr, nullptr, 0.01, 1.0, false);
    SampleList<double, double> values(0.0, 0.0, nullptr, &rates, 0.01, 1.0, true);
    double now = 0.0;
    const auto step = [&] {
        now += 0.02;
        values.addSample(now, now);
        rates.calcLastValueBlured();
    };
    for (int i = 0; i < 400; ++i)
        step();
    AllocationCounter allocations;
    for (int i = 0; i < 400; ++i)
        step();
    EXPECT_EQ(allocations.count(), 0u);
}

TEST(SteadyState, aFrameOfTheManagerAllocatesNothing) {
    ManagerRig rig;
    rig.load("SensorCount=2\nD7=1\n[S1]\nFactoryIndex=0\n");
    rig.sensor(1)->hasNews = true;
    rig.manager.Update();
    AllocationCounter allocations;
    for (int frame = 0; frame < 20; ++frame) {
        rig.clock.advance(0.036);
        rig.manager.Update();
    }
    EXPECT_EQ(allocations.count(), 0u);
}

} // namespace
} // namespace skyvane
