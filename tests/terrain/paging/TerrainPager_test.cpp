#include "terrain/paging/TerrainPager.h"

#include "chart/geodesy/EarthConstants.h"
#include "support/AllocationCounter.h"
#include "terrain/TerrainFixture.h"

#include <chrono>
#include <cmath>
#include <thread>

namespace skyvane {
namespace {

class Caller : public ITerrainPointCallback {
public:
    void OnHeightPoints(PointCall&) override {}
};

class TerrainPaging : public TerrainFixture {
protected:
    void SetUp() override {
        save(cell(1, 43, 1), flatTile(500));
        save(cell(0, 43, 2), flatTile(400));
    }
    /// What a round brings for an aircraft there.
    const TerrainPager::News& fly(const ChartPosition& position, double altitude) {
        pager_.exchange({position, altitude, true}, news_);
        EXPECT_TRUE(pager_.runRound());
        pager_.exchange({position, altitude, true}, news_);
        return news_;
    }
    static std::unique_ptr<PointCall> profile(Caller& caller, std::vector<ChartPosition> positions) {
        return std::make_unique<PointCall>(&caller, std::move(positions), 1e-3);
    }
    std::unique_ptr<ImageCall> image(const void* who, double north) {
        return std::make_unique<ImageCall>(who, ChartPosition(1.2, north), ChartPosition(1.4, north - 0.2), 256, 256);
    }
    TerrainPager pager_{store_, 32};
    TerrainPager::News news_;
};

TEST_F(TerrainPaging, makesMeshesAsTheAircraftMoves) {
    fly({1.5, 42.5}, 1000);
    ASSERT_TRUE(news_.nearMesh && news_.wideMesh);
    EXPECT_FALSE(news_.lost);
    EXPECT_EQ(news_.currentElevation, 500.0f);
    EXPECT_TRUE(news_.isElevationKnown);
    EXPECT_EQ(news_.near.centre.longitude, 1.5);
    EXPECT_EQ(news_.near.vertices.size(), 32u * 32u);
    EXPECT_EQ(news_.near.maximum, news_.near.minimum + 1.0f) << "flat";
    fly({1.5, 42.5}, 1000);
    EXPECT_FALSE(news_.nearMesh || news_.wideMesh) << "it stands still";
    fly({1.5, 42.5}, 1099);
    EXPECT_FALSE(news_.nearMesh);
    fly({1.5, 42.5}, 1101);
    EXPECT_TRUE(news_.nearMesh && !news_.wideMesh);
    const double degree = MetresPerDegree;
    fly({1.5, 42.5 + 290 / degree}, 1101);
    EXPECT_FALSE(news_.nearMesh);
    fly({1.5, 42.5 + 310 / degree}, 1101);
    EXPECT_TRUE(news_.nearMesh);
    EXPECT_NEAR(news_.near.centre.latitude, 42.5 + 460 / degree, 1e-9) << "ahead";
    fly({1.5, 42.5 + 5100 / degree}, 1101);
    EXPECT_TRUE(news_.wideMesh);
    EXPECT_NEAR(news_.wide.centre.latitude, 42.5 + 7600 / degree, 1e-9);
    fly({1.5, 42.5 + 2700 / degree}, 1101);
    EXPECT_FALSE(news_.wideMesh);
    fly({1.5, 42.5 + 2500 / degree}, 1101);
    EXPECT_TRUE(news_.wideMesh) << "turned back: its middle is far off";
}

TEST_F(TerrainPaging, forgetsAnAircraftThatIsLost) {
    fly({1.5, 42.5}, 1000);
    pager_.exchange({{1.5, 42.5}, 1000, false}, news_);
    pager_.runRound();
    pager_.exchange({{1.5, 42.5}, 1000, true}, news_);
    EXPECT_TRUE(news_.lost);
    fly({1.7, 42.5}, 1000);
    EXPECT_TRUE(news_.nearMesh && !news_.lost);
    EXPECT_EQ(news_.near.centre.longitude, 1.7) << "the way there says nothing";
    for (const ChartPosition& wrong : {ChartPosition(NAN, 42), ChartPosition(1, HUGE_VAL)}) {
        fly(wrong, 1000);
        EXPECT_TRUE(news_.lost);
    }
    fly({1.5, 42.5}, NAN);
    EXPECT_TRUE(news_.lost);
}

TEST_F(TerrainPaging, answersProfiles) {
    Caller first, second, gone;
    pager_.requestHeightPoints(profile(first, {{0, 0}}));
    pager_.requestHeightPoints(profile(first, {{1.5, 42.5}, {0.5, 42.5}, {50, 0}}));
    pager_.requestHeightPoints(profile(second, {}));
    pager_.requestHeightPoints(profile(gone, {{1.5, 42.5}}));
    pager_.exchange({}, news_);
    pager_.runRound();
    pager_.deleteHeightPointRequests(&gone);
    pager_.exchange({}, news_);
    ASSERT_EQ(news_.points.size(), 2u);
    const PointCall& call = *news_.points.front();
    EXPECT_EQ(call.caller, &first);
    EXPECT_EQ(call.heights, (std::vector<float>{500, 400, 0}));
    EXPECT_EQ(call.known, (std::vector<uint8_t>{1, 1, 0}));
    EXPECT_EQ(call.minimum, 0.0f);
    EXPECT_EQ(call.maximum, 500.0f);
    EXPECT_EQ(news_.points.back()->maximum, -10000.0f);
}

TEST_F(TerrainPaging, answersImagesOneForEachAtATime) {
    const int panel = 0, gone = 0;
    pager_.requestImage(image(&panel, 42.9));
    pager_.requestImage(image(&panel, 42.8));
    pager_.requestImage(image(&gone, 42.8));
    pager_.exchange({}, news_);
    pager_.requestImage(image(&panel, 42.7));
    pager_.exchange({}, news_); // waits: the panel has one on the thread
    pager_.runRound();
    pager_.deleteImageRequests(&gone);
    pager_.exchange({}, news_);
    ASSERT_EQ(news_.images.size(), 1u);
    EXPECT_EQ(news_.images.front()->nw.latitude, 42.8);
    EXPECT_EQ(news_.images.front()->pixels[9] & 0xffff, 12500u);
    EXPECT_EQ(news_.images.front()->figures.average, 500.0f);
    news_.images.clear();
    pager_.exchange({}, news_);
    pager_.runRound();
    pager_.requestImage(image(&gone, 42.8)); // wanted again
    pager_.exchange({}, news_);
    ASSERT_EQ(news_.images.size(), 1u);
    EXPECT_EQ(news_.images.front()->nw.latitude, 42.7);
    pager_.runRound();
    pager_.exchange({}, news_);
    EXPECT_EQ(news_.images.size(), 2u);
}

TEST_F(TerrainPaging, takesNothingFromTheHeapOnceItRuns) {
    for (int i = 0; i < 4; ++i)
        fly({1.5, 42.5 + 0.05 * i}, 1000);
    const AllocationCounter allocations;
    fly({1.5, 42.55}, 1000);
    EXPECT_TRUE(news_.nearMesh && news_.wideMesh);
    EXPECT_EQ(allocations.count(), 0u);
}

TEST_F(TerrainPaging, runsOnItsThreadUntilItIsPaused) {
    ASSERT_TRUE(pager_.start());
    double slowest = 0.0;
    int meshes = 0;
    constexpr int enough = 18; // rounds, for the cache to shrink as far as it goes
    for (int i = 0; meshes < 5 || i < enough; ++i) {
        const auto before = std::chrono::steady_clock::now();
        pager_.exchange({{1.5, 42.5 + 0.01 * meshes}, 1000, true}, news_);
        slowest = std::max(slowest, std::chrono::duration<double>(std::chrono::steady_clock::now() - before).count());
        meshes += news_.nearMesh;
        if (i % 3 == 0) { // the store is the main thread's while it is paused
            pager_.pauseThread(true);
            store_.freeMemory();
            EXPECT_TRUE(pager_.isThreadPaused());
            pager_.pauseThread(false);
        }
        std::this_thread::yield();
    }
    RecordProperty("slowestExchangeMicroseconds", static_cast<int>(slowest * 1e6));
    EXPECT_EQ(store_.getCacheLimit(), 9u);
}

} // namespace
} // namespace skyvane
