#include "chartmaker/inspect/ReliefPicture.h"
#include "sensors/TemporaryFolder.h"
#include "terrain/files/BackgroundList.h"
#include "terrain/files/TerrainTile.h"
#include "terrain/mesh/NearMesh.h"
#include "terrain/mesh/WideMesh.h"
#include "terrain/tree/TerrainSampler.h"
#include "terrain/tree/TerrainStore.h"
#include "tools/chartmaker/ChartMakerRun.h"

#include <cmath>
#include <cstdlib>
#include <filesystem>

namespace skyvane {
namespace {

/// Four leaves of waves that go on from each to the next.
struct Relief : testing::Test {
    TemporaryFolder folder;
    TerrainStore store{folder.path() + "/", TerrainStore::DefaultCacheSize};

    Relief() {
        for (const double west : {1.0, 2.0})
            for (const double north : {43.0, 42.0}) {
                std::vector<int16_t> heights(TileSamples);
                for (int i = 0; i < TileSamples; ++i) {
                    const double x = west * TileSteps + i % TileSide, y = -north * TileSteps + i / TileSide;
                    heights[static_cast<size_t>(i)] =
                        static_cast<int16_t>(1500.0 + 400.0 * std::sin(x / 90.0) * std::cos(y / 70.0));
                }
                const ITerrainNode* leaf = findFittingNode(store.getRoot(), {west, north}, {west + 1.0, north - 1.0});
                EXPECT_TRUE(saveTile(getTilePath(store.getFolder(), leaf->getId()), heights.data()));
            }
    }
    ChartMakerRun draw(const Arguments& more = {}) const {
        Arguments arguments{"relief", folder.path(), "--at", "2,42", "--out", folder.path("ground.png")};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return ChartMakerRun(arguments);
    }
};

TEST_F(Relief, hasNoHolesOnceTheLevelsAreThere) {
    EXPECT_EQ(draw().status, 1) << "leaves alone make no mesh";
    setFolderDirty(store.getFolder(), true);
    const ChartMakerRun levels({"levels", folder.path()});
    EXPECT_EQ(levels.status, 0) << levels.error;
    EXPECT_FALSE(isFolderDirty(store.getFolder()));
    for (const Arguments& view : std::vector<Arguments>{{}, {"--tilt", "40"}, {"--radius", "200"}}) {
        const ChartMakerRun run = draw(view);
        EXPECT_EQ(run.status, 0) << run.error;
        EXPECT_NE(run.out.find("; 0 pixels without ground"), std::string::npos) << run.out;
        EXPECT_GT(std::filesystem::file_size(folder.path("ground.png")), 20000u);
    }
}

TEST_F(Relief, joinsItsMeshesWithoutAStep) {
    ASSERT_EQ(ChartMakerRun({"levels", folder.path()}).status, 0);
    TerrainSampler sampler(store);
    TerrainMesh near, wide;
    NearMesh(181).build(sampler, {2.0, 42.0}, near);
    WideMesh().build(sampler, {2.0, 42.0}, wide);
    // The near mesh's rim stands on the wide one's ground, whose waves are 5 km long.
    double worst = 0.0;
    for (const TerrainVertex& rim : near.vertices) {
        if (std::max(std::fabs(rim.position.X), std::fabs(rim.position.Z)) < 9999.0f)
            continue;
        const TerrainVertex* nearest = &wide.vertices[WideMesh::VerticesPerRing];
        for (size_t i = WideMesh::VerticesPerRing; i < wide.vertices.size(); ++i)
            if (std::hypot(wide.vertices[i].position.X - rim.position.X, wide.vertices[i].position.Z - rim.position.Z) <
                std::hypot(nearest->position.X - rim.position.X, nearest->position.Z - rim.position.Z))
                nearest = &wide.vertices[i];
        worst = std::max(worst, std::fabs(static_cast<double>(nearest->position.Y - rim.position.Y)));
    }
    EXPECT_LT(worst, 150.0);
}

/// Andorra, across the edge of its two tiles; the pictures are kept where SKYVANE_TEST_PICTURES names a folder.
TEST(RealRelief, hasNoHoles) {
    const char* data = std::getenv("SKYVANE_DATA");
    if (!data)
        GTEST_SKIP() << "no real terrain: SKYVANE_DATA isn't set";
    const TemporaryFolder folder;
    const std::string tiles = data + std::string("/terrain/");
    ASSERT_EQ(ChartMakerRun({"terrain", "--out", folder.path(), "--name", "Pyrenees", tiles + "N42E001.hgt.zip",
                             tiles + "N41E001.hgt.zip"})
                  .status,
              0);
    ASSERT_EQ(ChartMakerRun({"levels", folder.path()}).status, 0);
    const char* pictures = std::getenv("SKYVANE_TEST_PICTURES");
    const std::string out = pictures ? std::string(pictures) : folder.path();
    for (const Arguments& view : std::vector<Arguments>{{"--at", "1.5,42.02", "--radius", "13", "--out", "seam.png"},
                                                        {"--at", "1.5,42.4", "--tilt", "30", "--out", "tilted.png"}}) {
        Arguments arguments{"relief", folder.path()};
        arguments.insert(arguments.end(), view.begin(), view.end());
        arguments.back() = out + "/relief-" + arguments.back();
        const ChartMakerRun run(arguments);
        EXPECT_EQ(run.status, 0) << run.error;
        EXPECT_NE(run.out.find("; 0 pixels without ground"), std::string::npos) << run.out;
    }
}

TEST_F(Relief, namesWrongArguments) {
    for (const Arguments& arguments : std::vector<Arguments>{{"relief", "x"},
                                                             {"relief", "x", "--at", "1", "--out", "y"},
                                                             {"relief", "x", "--at", "1,91", "--out", "y"},
                                                             {"relief", "x", "--tilt", "0"},
                                                             {"levels"},
                                                             {"levels", "--out"}})
        EXPECT_EQ(ChartMakerRun(arguments).status, 2) << arguments.back();
    EXPECT_EQ(ChartMakerRun({"levels", folder.path("none")}).status, 1);
}

} // namespace
} // namespace skyvane
