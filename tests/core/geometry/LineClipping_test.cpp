#include "core/geometry/LineClipping.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

const irr::core::rect<int> Bounds(-20, 10, 60, 50);

struct Line {
    int x0, y0, x1, y1;
};

/// Whether a part of the line lies within the bounds grown by `margin`, by walking along it: the slow twin.
bool meets(const Line& line, double margin) {
    for (int step = 0; step <= 4000; ++step) {
        const double t = step / 4000.0;
        const double x = line.x0 + t * (line.x1 - line.x0), y = line.y0 + t * (line.y1 - line.y0);
        if (x >= -20 - margin && x <= 60 + margin && y >= 10 - margin && y <= 50 + margin)
            return true;
    }
    return false;
}

double distanceFromLine(const Line& line, int x, int y) {
    const double dx = line.x1 - line.x0, dy = line.y1 - line.y0, length = std::hypot(dx, dy);
    return length == 0.0 ? std::hypot(x - line.x0, y - line.y0)
                         : std::fabs(dx * (y - line.y0) - dy * (x - line.x0)) / length;
}

TEST(LineClipping, agreesWithAWalkAlongTheLine) {
    const unsigned seed = 99;
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> coordinate(-100, 150);
    for (int i = 0; i < 3000; ++i) {
        const Line line{coordinate(random), coordinate(random), coordinate(random), coordinate(random)};
        Line cut = line;
        const bool within = clipline(cut.x0, cut.y0, cut.x1, cut.y1, Bounds);
        SCOPED_TRACE("seed " + std::to_string(seed) + " line " + std::to_string(i));
        if (within)
            EXPECT_TRUE(meets(line, 1.0));
        else
            EXPECT_FALSE(meets(line, -1.0));
        if (!within)
            continue;
        EXPECT_EQ(ComputeOutCode(cut.x0, cut.y0, Bounds), 0);
        EXPECT_EQ(ComputeOutCode(cut.x1, cut.y1, Bounds), 0);
        EXPECT_LE(distanceFromLine(line, cut.x0, cut.y0), 1.5);
        EXPECT_LE(distanceFromLine(line, cut.x1, cut.y1), 1.5);
    }
}

TEST(LineClipping, edgesBelongToTheBoundsAndSidesAdd) {
    EXPECT_EQ(ComputeOutCode(-20, 50, Bounds), 0);
    EXPECT_EQ(ComputeOutCode(-21, 51, Bounds), OutLeft | OutBelow);
    EXPECT_EQ(ComputeOutCode(61, 9, Bounds), OutRight | OutAbove);
}

TEST(LineClipping, endsWithTheWidestNumbersAndBoundsInsideOut) {
    const int low = -2147483647 - 1, high = 2147483647;
    Line line{low, low, high, high};
    EXPECT_TRUE(clipline(line.x0, line.y0, line.x1, line.y1, Bounds));
    EXPECT_EQ(line.x0, 10);
    EXPECT_EQ(line.x1, 50);
    Line other{low, 30, high, 30};
    EXPECT_FALSE(clipline(other.x0, other.y0, other.x1, other.y1, irr::core::rect<int>(60, 50, -20, 10)));
}

} // namespace
} // namespace skyvane
