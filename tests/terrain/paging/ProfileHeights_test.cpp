#include "terrain/paging/ProfileHeights.h"

#include "terrain/TerrainFixture.h"
#include "terrain/paging/TerrainRequests.h"

#include <cmath>

namespace skyvane {
namespace {

/// Fine tiles of 500 m with a wall in the middle, three samples wide, that the coarse one has lost in its means.
class ProfileHeights : public TerrainFixture {
protected:
    void SetUp() override {
        save(cell(1, 43, 1), makeTile([](int, int column) { return column >= 599 && column <= 601 ? 1500 : 500; }));
        save(cell(0, 43, 2), flatTile(510));
    }
    /// Along a parallel, for which one sample in `interval` square kilometres does.
    PointCall fill(std::vector<double> longitudes, double interval) {
        std::vector<ChartPosition> positions;
        for (const double longitude : longitudes)
            positions.emplace_back(longitude, 42.5);
        PointCall call(nullptr, positions, interval);
        fillProfileHeights(store_, call);
        return call;
    }
};

constexpr double Coarse = 0.01; ///< The fine tiles have more than that needs.

TEST_F(ProfileHeights, missNoRidgeBetweenTwoPoints) {
    const PointCall call = fill({1.4905, 1.4975, 1.5045, 1.5115}, Coarse);
    EXPECT_EQ(call.heights[0], 510.0f) << "never below what the point itself has";
    EXPECT_EQ(call.heights[1], 1500.0f) << "the wall is nearer to this one";
    EXPECT_LT(call.heights[2], 1000.0f);
    EXPECT_EQ(call.heights[3], 510.0f);
    EXPECT_EQ(call.minimum, 510.0f);
    EXPECT_EQ(call.maximum, 1500.0f);
}

TEST_F(ProfileHeights, leaveTheUnknownUnknown) {
    const PointCall call = fill({1.7, NAN, 1.8, 2.3, 2.4}, Coarse);
    EXPECT_EQ(call.heights, (std::vector<float>{510, 0, 510, 0, 0}));
    EXPECT_EQ(call.known, (std::vector<uint8_t>{1, 0, 1, 0, 0}));
    EXPECT_EQ(fill({}, Coarse).maximum, -10000.0f);
    EXPECT_EQ(fill({1.5}, Coarse).heights, std::vector<float>{510});
}

} // namespace
} // namespace skyvane
