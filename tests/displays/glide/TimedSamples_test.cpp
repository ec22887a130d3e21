#include "displays/glide/TimedSamples.h"
#include "support/AllocationCounter.h"

#include <gtest/gtest.h>
#include <list>
#include <random>

namespace skyvane {
namespace {

TEST(TimedSamples, takesOneASecondAndForgetsWhatIsOlderThanTheSpan) {
    TimedSamples samples(3000, 1000);
    EXPECT_EQ(samples.mean(), 0.0);
    EXPECT_EQ(samples.updateAverage(4.0, 500), 4.0);
    EXPECT_EQ(samples.updateAverage(100.0, 1499), 4.0) << "999 ms after the last one";
    EXPECT_EQ(samples.updateAverage(8.0, 1500), 6.0);
    EXPECT_EQ(samples.updateAverage(0.0, 2500), 4.0);
    EXPECT_EQ(samples.updateAverage(4.0, 3500), 4.0) << "the first is 3000 ms old and stays";
    EXPECT_EQ(samples.updateAverage(99.0, 3501), 4.0) << "8, 0 and 4: now it went";
    EXPECT_EQ(samples.updateAverage(7.0, 60000), 7.0) << "after a pause";
}

TEST(TimedSamples, followsAClockThatWrapsAndStartsAnewWhenItGoesBack) {
    TimedSamples samples(3000, 1000);
    samples.add(2.0, 0xfffffe00u);
    EXPECT_EQ(samples.updateAverage(4.0, 0x300u), 3.0);
    EXPECT_EQ(samples.updateAverage(9.0, 0x2ffu), 9.0);
}

TEST(TimedSamples, integratesByTrapezoids) {
    TimedSamples samples(30000, 100);
    EXPECT_EQ(samples.meanOverTime(), 0.0);
    samples.add(-1.0, 1000);
    EXPECT_EQ(samples.meanOverTime(), -1.0);
    samples.add(-3.0, 2000);
    EXPECT_EQ(samples.meanOverTime(), -2.0);
    samples.add(-3.0, 5000);
    EXPECT_DOUBLE_EQ(samples.meanOverTime(), (-2.0 * 1.0 - 3.0 * 3.0) / 4.0);
    samples.add(0.0, 31001);
    EXPECT_DOUBLE_EQ(samples.meanOverTime(), (-3.0 * 3.0 - 1.5 * 26.001) / 29.001) << "the first went";
}

TEST(TimedSamples, agreesWithAPlainListAndAllocatesNothing) {
    TimedSamples samples(60000, 1000);
    std::list<std::pair<double, unsigned>> list;
    std::mt19937 random(20);
    unsigned now = 0xffff0000u;
    for (int i = 0; i < 3000; ++i) {
        now += random() % 400;
        const double value = static_cast<double>(random() % 1000) - 500.0;
        while (!list.empty() && now - list.front().second > 60000)
            list.pop_front();
        if (list.empty() || now - list.back().second >= 1000)
            list.emplace_back(value, now);
        double sum = 0.0;
        for (const auto& each : list)
            sum += each.first;
        const AllocationCounter counter;
        ASSERT_DOUBLE_EQ(samples.updateAverage(value, now), sum / static_cast<double>(list.size())) << i;
        ASSERT_EQ(counter.count(), 0u);
    }
}

TEST(TimedSamples, bringsASpanThatNobodyMeantIntoItsLimits) {
    TimedSamples none(0, 1000), endless(0xffffffffu, 1000);
    for (unsigned now = 0; now < 10000000; now += 1000) {
        none.add(1.0, now);
        endless.add(1.0, now);
    }
    EXPECT_EQ(none.mean(), 1.0);
    EXPECT_EQ(endless.mean(), 1.0);
}

} // namespace
} // namespace skyvane
