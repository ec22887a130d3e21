#include "chart/geodesy/ChartPosition.h"
#include "terrain/TerrainFixture.h"
#include "terrain/files/TerrainIndexFile.h"
#include "terrain/jobs/TerrainJob.h"

#include <cmath>
#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace skyvane {
namespace {

class Progress : public ITerrainProgress {
public:
    void setTitle(const std::string& title) override { titles += title + "|"; }
    void setProgress(double share) override {
        EXPECT_TRUE(share >= 0.0 && share <= 1.0) << share;
        last = share;
        ++calls;
    }
    void setState(const std::string& text) override { states += text; }
    bool isCancelled() override { return calls >= cancelAfter; }

    std::string titles, states;
    double last = 0.0;
    int calls = 0;
    int cancelAfter = 1 << 30;
};

constexpr unsigned long PlentyOfMemory = 4000000000;

class TerrainJobs : public TerrainFixture {
protected:
    bool update(unsigned cores = 2) {
        progress_.calls = 0;
        store_.clearCache();
        const bool done = store_.getRoot()->OnUpdate(store_.getFolder().c_str(), &progress_, PlentyOfMemory, cores);
        store_.getRoot()->resetLoadable();
        return done;
    }
    std::list<int> commonIds() { return parseTIFile(store_.getFolder() + CommonIndexName, nullptr, nullptr); }
    Progress progress_;
};

Tile waves(int shift) {
    return makeTile([shift](int row, int column) {
        return (row / 40 + column / 30 + shift) % 11 == 0 ? int{NoHeight}
                                                          : (row + 3 * column) / 4 * (shift % 2 ? 1 : -1);
    });
}

/// The mean again, in single precision, sample by sample of the parent.
Tile slowParent(const std::vector<Tile>& children, int columns, int rows) {
    return makeTile([&](int row, int column) -> int {
        if (row == TileSteps || column == TileSteps)
            return NoHeight;
        const int width = TileSteps / columns, height = TileSteps / rows;
        const Tile& child = children[static_cast<size_t>(row / height * columns + column / width)];
        float sum = 0.0f, count = 0.0f;
        for (int y = 0; y < rows && !child.empty(); ++y)
            for (int x = 0; x < columns; ++x) {
                const int16_t sample =
                    child[static_cast<size_t>((row % height * rows + y) * TileSide + column % width * columns + x)];
                if (sample != NoHeight) {
                    sum += sample;
                    count += 1.0f;
                }
            }
        return count > 0.0f ? static_cast<int>(std::round(sum / count)) : int{NoHeight};
    });
}

TEST(ThreadBudget, isAsMuchAsProcessorAndMemoryBear) {
    EXPECT_EQ(calcThreadBudget(16000000000, 4).cpuMaxThreads, 8);
    EXPECT_EQ(calcThreadBudget(16000000000, 3).cpuMaxThreads, 6);
    EXPECT_EQ(calcThreadBudget(16000000000, 12).cpuMaxThreads, 12);
    EXPECT_EQ(calcThreadBudget(2000000000, 1000).maxSyncThreadCount, 186);
    EXPECT_EQ(calcThreadBudget(2000000000, 1000).maxThreadCount, 6);
    EXPECT_LE(calcThreadBudget(100000000, 4).maxThreadCount, 0);
}

TEST_F(TerrainJobs, averageWithTheRulesOfASlowTwin) {
    for (const auto& [columns, rows] : {std::pair(2, 1), std::pair(2, 2), std::pair(5, 5)}) {
        std::vector<Tile> children;
        Tile parent = flatTile(NoHeight);
        for (int i = 0; i < columns * rows; ++i) {
            children.push_back(i == 1 ? Tile() : waves(i));
            if (i != 1)
                averageIntoParent(children.back().data(), columns, rows, i % columns, i / columns, parent.data());
        }
        EXPECT_EQ(parent, slowParent(children, columns, rows)) << columns << " x " << rows;
    }
}

TEST_F(TerrainJobs, makeLevelsAndEdges) {
    save(cell(2, 44, 1), waves(1));
    save(cell(3, 44, 1), waves(2));
    save(cell(2, 43, 1), waves(3));
    save(cell(3, 43, 1), waves(4));
    save(cell(4, 43, 1), waves(5)); // another cell of 2 and of 4 degrees
    folder_.write("12.terr.new", "what a kill left");
    ASSERT_TRUE(update());
    EXPECT_FALSE(std::filesystem::exists(folder_.path("12.terr.new")));
    EXPECT_EQ(commonIds().size(), 3u + 2u + 4u) << "of 2 degrees, of 4, and one of each wider kind";
    EXPECT_NE(progress_.titles.find("(Threads: 4) and may become hot"), std::string::npos);
    EXPECT_EQ(progress_.states, "Calculating terrain levels...Finalizing terrain data...");
    EXPECT_EQ(progress_.last, 1.0);

    const Tile west = load(cell(2, 44, 1)), east = load(cell(3, 44, 1)), south = load(cell(2, 43, 1)),
               southEast = load(cell(3, 43, 1));
    Tile expected = waves(1);
    for (int i = 0; i < TileSteps; ++i) {
        expected[static_cast<size_t>(i * TileSide + TileSteps)] = east[static_cast<size_t>(i * TileSide)];
        expected[static_cast<size_t>(TileSteps * TileSide + i)] = south[static_cast<size_t>(i)];
    }
    expected.back() = southEast.front();
    EXPECT_EQ(west, expected);
    // Across the borders of parents, on each level.
    EXPECT_EQ(load(cell(3, 43, 1))[TileSteps], load(cell(4, 43, 1))[0]);
    const Tile parent = load(cell(2, 44, 2)), below = load(cell(2, 43, 2)), right = load(cell(4, 43, 2));
    EXPECT_EQ(parent[TileSteps * TileSide + 7], below[7]);
    EXPECT_EQ(below[5 * TileSide + TileSteps], right[5 * TileSide]);
    EXPECT_EQ(parent.back(), right.front()) << "the south-east one has another parent";
    EXPECT_EQ(right[TileSteps], NoHeight) << "no neighbour: as it was";
    Tile inner = slowParent({waves(1), waves(2)}, 2, 1);
    for (int i = 0; i < TileSide; ++i)
        inner[static_cast<size_t>(i * TileSide + TileSteps)] = parent[static_cast<size_t>(i * TileSide + TileSteps)];
    for (int i = 0; i < TileSide; ++i)
        inner[static_cast<size_t>(TileSteps * TileSide + i)] = parent[static_cast<size_t>(TileSteps * TileSide + i)];
    EXPECT_EQ(parent, inner);

    // Once more: the same, byte by byte, on one thread. And without a leaf, its level goes.
    const Tile root = load(store_.getRoot());
    ASSERT_TRUE(update(0));
    EXPECT_EQ(load(store_.getRoot()), root);
    EXPECT_EQ(load(cell(2, 44, 1)), expected);
    std::filesystem::remove(path(cell(4, 43, 1)));
    ASSERT_TRUE(update());
    EXPECT_FALSE(std::filesystem::exists(path(cell(4, 43, 2))));
    EXPECT_EQ(commonIds().size(), 2u + 1u + 4u);
}

TEST_F(TerrainJobs, keepToTheMemoryOfTheirBudget) {
    for (int i = 0; i < 16; ++i)
        save(cell(i % 4, 44 - i / 4, 1), waves(i));
    for (const int threads : {0, 1, 3}) {
        TerrainJob job(store_.getRoot(), store_.getFolder(), progress_, {threads, threads, threads});
        ASSERT_TRUE(job.run());
        // What ThreadBudget allows a thread that synchronizes; computing levels it may have far more.
        EXPECT_LE(job.getPeakTiles(), 2u * static_cast<size_t>(std::max(threads, 1))) << threads;
    }
}

TEST_F(TerrainJobs, closeTheSeam) {
    save(cell(359, 43, 1), makeTile([](int, int) { return 100; }));
    save(cell(0, 43, 1), makeTile([](int, int) { return 700; }));
    ASSERT_TRUE(update());
    EXPECT_EQ(load(cell(359, 43, 1))[TileSteps], 100) << "leaves bring their own";
    EXPECT_EQ(load(cell(358, 43, 2))[TileSteps], 700);
    EXPECT_EQ(load(cell(352, 44, 8))[300 * TileSide + TileSteps], 700); // 44 to 40: the first degree is 0 to 300
    const Tile wide = load(cell(352, 44, 16));                          // 360 is at column 600
    const size_t row = static_cast<size_t>(200 * TileSide);
    EXPECT_EQ(wide[row + 599], 100);
    EXPECT_EQ(wide[row + 600], 700);
    EXPECT_EQ(wide[row + 601], 700);
    EXPECT_EQ(wide[row + 602], NoHeight);
    EXPECT_EQ(heightAt(360.0 - 1e-9, 42.5, 1.5), 700.0f);
    EXPECT_EQ(heightAt(360.0, 42.5, 1.5), 700.0f);
}

TEST_F(TerrainJobs, leaveDamagedTilesOut) {
    save(cell(2, 44, 1), flatTile(10));
    std::ofstream(path(cell(3, 44, 1))) << "rubbish";
    std::ofstream(path(cell(9, 44, 1))) << "rubbish";
    folder_.write("999999.terr", "no node's");
    ASSERT_TRUE(update());
    EXPECT_EQ(load(cell(2, 44, 2))[0], 10);
    EXPECT_EQ(load(cell(2, 44, 2))[800], NoHeight);
    EXPECT_FALSE(std::filesystem::exists(path(cell(8, 44, 2))));
    EXPECT_EQ(commonIds().size(), 6u);
}

TEST_F(TerrainJobs, endWhenCancelled) {
    save(cell(2, 44, 1), waves(1));
    save(cell(3, 44, 1), waves(2));
    progress_.cancelAfter = 1;
    EXPECT_FALSE(update());
    EXPECT_FALSE(std::filesystem::exists(path(store_.getRoot())));
    progress_.cancelAfter = 1 << 30;
    ASSERT_TRUE(update());
    EXPECT_EQ(load(cell(2, 44, 1))[TileSteps], load(cell(3, 44, 1))[0]);
}

TEST_F(TerrainJobs, endOnAFullDisk) {
    save(cell(2, 44, 1), waves(1));
    const Tile before = load(cell(2, 44, 1));
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit old{};
    getrlimit(RLIMIT_FSIZE, &old);
    const rlimit small = {2000, old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    const bool done = update();
    setrlimit(RLIMIT_FSIZE, &old);
    EXPECT_FALSE(done);
    EXPECT_EQ(load(cell(2, 44, 1)), before);
    ASSERT_TRUE(update());
}

TEST_F(TerrainJobs, surviveAKillAtAnyMoment) {
    for (const double west : {2.0, 3.0})
        for (const double north : {44.0, 43.0})
            save(cell(west, north, 1), waves(static_cast<int>(west + north)));
    ASSERT_TRUE(update());
    std::map<int, Tile> expected;
    std::list<int> ids = commonIds();
    for (const double west : {2.0, 3.0})
        ids.push_back(cell(west, 44, 1)->getId());
    for (const int id : ids)
        expected[id] = load(store_.getNode(id));
    for (const int milliseconds : {5, 120, 400, 900}) {
        for (const double west : {2.0, 3.0})
            save(cell(west, 44, 1), waves(static_cast<int>(west) + 44));
        for (const int id : commonIds())
            std::filesystem::remove(path(store_.getNode(id)));
        const pid_t child = fork();
        if (child == 0) {
            std::freopen("/dev/null", "w", stdout);
            update();
            _exit(0);
        }
        usleep(static_cast<useconds_t>(milliseconds * 1000));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        for (const auto& [id, tile] : expected) {
            const Tile found = load(store_.getNode(id));
            EXPECT_TRUE(found.size() == tile.size() || !std::filesystem::exists(path(store_.getNode(id))))
                << "half a tile after " << milliseconds;
        }
        ASSERT_TRUE(update());
        for (const auto& [id, tile] : expected)
            EXPECT_EQ(load(store_.getNode(id)), tile) << id << " after " << milliseconds;
    }
}

} // namespace
} // namespace skyvane
