#include "sensors/SampleList.h"

#include "chart/geodesy/Angles.h"

#include <cmath>
#include <deque>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

using List = SampleList<double, double>;
using Vector = irr::core::vector3d<double>;

/// The slow twin: keeps every sample that counts and goes through the last ones each time.
struct Twin {
    double minimalDelta;
    double blur;
    std::deque<std::pair<double, double>> samples; ///< Value and time.

    void add(double value, double time) {
        const double last = samples.back().second;
        const double gap = time < last ? 2.0 * time : std::fabs(time - last);
        if (gap <= minimalDelta)
            return;
        samples.emplace_back(value, time);
        while (samples.size() > static_cast<size_t>(3.0 * blur / minimalDelta))
            samples.pop_front();
    }
    double blured() const {
        double sum = 0.0, weights = 0.0;
        for (const auto& [value, time] : samples) {
            const double deviations = (samples.back().second - time) / blur;
            const double weight = std::exp(-0.5 * deviations * deviations);
            sum += weight * value;
            weights += weight;
        }
        return sum / weights;
    }
};

TEST(SampleList, agreesWithRecalculation) {
    const unsigned seed = 20261122;
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> step(-0.02, 0.15);
    List list(1.0, 5.0, nullptr, nullptr, 0.05, 1.0, false);
    Twin twin{0.05, 1.0, {{1.0, 5.0}}};
    double time = 5.0;
    for (int i = 0; i < 2000; ++i) {
        time += step(random);
        const double value = std::sin(time) * 100.0;
        list.addSample(value, time);
        twin.add(value, time);
        ASSERT_EQ(list.count(), static_cast<int>(twin.samples.size()));
        ASSERT_NEAR(list.calcLastValueBlured(), twin.blured(), 1e-9) << "seed " << seed << " step " << i;
    }
    EXPECT_EQ(list.count(), 60);
}

TEST(SampleList, dropsWhatComesTooSoonOrIsNoNumber) {
    List list(1.0, 10.0, nullptr, nullptr, 0.5, 10.0, false);
    list.addSample(2.0, 10.0);
    list.addSample(2.0, 10.5);
    list.addSample(std::nan(""), 12.0);
    list.addSample(HUGE_VAL, 12.0);
    list.addSample(2.0, std::nan(""));
    EXPECT_EQ(list.count(), 1);
    list.addSample(2.0, 10.51);
    EXPECT_EQ(list.count(), 2);
    list.addSample(3.0, 0.2); // back in time: a gap of 0.4
    EXPECT_EQ(list.count(), 2);
    list.addSample(3.0, 0.3); // back in time: a gap of 0.6
    EXPECT_EQ(list.count(), 3);
}

TEST(SampleList, derivesAndIntegrates) {
    List rates(0.0, 0.0, nullptr, nullptr, 0.001, 10.0, false);
    List sums(100.0, 0.0, nullptr, nullptr, 0.001, 10.0, false);
    List list(10.0, 0.0, &sums, &rates, 0.01, 10.0, false);
    list.addSample(14.0, 2.0);
    EXPECT_EQ(rates.count(), 2);
    rates.popLastSample();
    EXPECT_EQ(rates.count(), 1);
    sums.popLastSample();
    EXPECT_EQ(sums.calcLastValueBlured(), 100.0);
    list.addSample(16.0, 3.0);
    // Only the new derivative, 2 per second at 2.5 s, and the old sample of 0 at 0 s remain.
    const double weight = std::exp(-0.5 * 0.25 * 0.25);
    EXPECT_NEAR(rates.calcLastValueBlured(), 2.0 / (1.0 + weight), 1e-12);
    EXPECT_NEAR(rates.lastTimeBlured(), 2.5 / (1.0 + weight), 1e-12);
    const double weightOfStart = std::exp(-0.5 * 0.3 * 0.3);
    EXPECT_NEAR(sums.calcLastValueBlured(), (115.0 + 100.0 * weightOfStart) / (1.0 + weightOfStart), 1e-12);
}

TEST(SampleList, anglesTakeTheShortWay) {
    List rates(0.0, -1000.0, nullptr, nullptr, 0.001, 1.0, false);
    List list(359.0, 0.0, nullptr, &rates, 0.01, 1.0, true);
    list.addSample(1.0, 0.5);
    EXPECT_NEAR(rates.calcLastValueBlured(), 2.0 / 0.5, 1e-12);
    const double blured = Angle180(list.calcLastValueBlured());
    EXPECT_GT(blured, -1.0);
    EXPECT_LT(blured, 1.0);

    SampleList<Vector, double> vectors(Vector(359.0, 0.0, 10.0), 0.0, nullptr, nullptr, 0.01, 1.0, true);
    vectors.addSample(Vector(1.0, 0.0, 20.0), 0.001);
    EXPECT_EQ(vectors.count(), 1);
    vectors.addSample(Vector(1.0, 0.0, 20.0), 0.02);
    EXPECT_NEAR(Angle180(vectors.calcLastValueBlured().X), 0.0, 0.01);
    EXPECT_NEAR(vectors.calcLastValueBlured().Z, 15.0, 0.01);
}

TEST(SampleList, emptyAndDegenerateListsAnswer) {
    List list(5.0, 0.0, nullptr, nullptr, 0.1, 1.0, false);
    list.popLastSample();
    list.popLastSample();
    EXPECT_EQ(list.calcLastValueBlured(), 0.0);
    list.addSample(7.0, 0.0);
    EXPECT_EQ(list.calcLastValueBlured(), 7.0);

    List sharp(5.0, 0.0, nullptr, nullptr, 0.1, 0.0, false);
    EXPECT_EQ(sharp.calcLastValueBlured(), 5.0);
    List unbounded(5.0, 0.0, nullptr, nullptr, 0.0, 1.0, false);
    unbounded.addSample(5.0, 0.0);
    EXPECT_EQ(unbounded.count(), 1);
    unbounded.addSample(5.0, 1.0);
    EXPECT_EQ(unbounded.count(), 2);
}

} // namespace
} // namespace skyvane
