#include "chart/geodesy/Angles.h"
#include "chart/geodesy/EarthRectangles.h"
#include "terrain/TerrainFixture.h"
#include "terrain/tree/TerrainSampler.h"

#include <cmath>
#include <limits>
#include <random>

namespace skyvane {
namespace {

constexpr float infinity = std::numeric_limits<float>::infinity();

class TerrainTree : public TerrainFixture {};

TEST_F(TerrainTree, isTheFixedOne) {
    MMTerrainNode* root = store_.getRoot();
    EXPECT_EQ(root->getChildrenCount(), 25);
    EXPECT_EQ(root->getChild(1)->getNWEdge().longitude, 80.0); // west to east before north to south
    EXPECT_EQ(root->getChild(5)->getNWEdge().latitude, 60.0);
    EXPECT_EQ(root->getChild(0)->getChild(0)->getId(), 2);
    EXPECT_EQ(root->getChild(24)->getId(), 1 + 24 * 5326);
    const MMTerrainNode* leaf = cell(1, 43, 1);
    ASSERT_TRUE(leaf && leaf->isLeaf());
    EXPECT_NEAR(leaf->getDensity(), TileSamples / calcConstrainedArea({1, 43}, {2, 42}), 1e-9);
    // Half of this cell lies in the world, and its samples with it.
    const MMTerrainNode* half = cell(352, 92, 16);
    EXPECT_NEAR(half->getDensity(), TileSamples * 0.375 / calcConstrainedArea({352, 90}, {360, 84}), 1e-9);
    EXPECT_EQ(cell(360, 43, 1)->getDensity(), 0.0);
    EXPECT_TRUE(cell(360, 43, 1)->isOcean());
    EXPECT_FALSE(half->isOcean());
    EXPECT_EQ(findFittingNode(root, {1, 43}, {362, 42}), nullptr);
    EXPECT_EQ(findFittingNode(root, {359, 43}, {0, 42}), cell(359, 43, 1)); // the east edge is raised
    EXPECT_EQ(findFittingNode(root, {NAN, 43}, {2, 42}), nullptr);
}

/// The rules again, over tiles in memory: every cell is looked at, and the corners come from whole degrees.
class SlowTwin {
public:
    struct Cell {
        double west, north, width, height;
    };
    std::map<std::tuple<double, double, double>, Tile> tiles; ///< By west, north and width.

    float getHeight(ChartPosition place, double density) {
        const int16_t height = at({0, 100, 400, 200}, 0, {Angle0to360(place.longitude), place.latitude}, density);
        return height == NoHeight ? 0.0f : height == -32767 ? infinity : height;
    }

private:
    int16_t at(const Cell& cell, int level, const ChartPosition& place, double density) {
        static const int columns[] = {5, 5, 2, 2, 2, 2, 0}, rows[] = {5, 5, 2, 2, 2, 1, 0};
        for (int i = 0; i < columns[level] * rows[level]; ++i) {
            const double width = cell.width / columns[level], height = cell.height / rows[level];
            const Cell child = {cell.west + width * (i % columns[level]), cell.north - height * (i / columns[level]),
                                width, height};
            if (!contains(child, place) || !(densityOf(child) < density))
                continue;
            const int16_t below = at(child, level + 1, place, density);
            if (below > -32767)
                return below;
            break;
        }
        const auto tile = tiles.find({cell.west, cell.north, cell.width});
        return tile == tiles.end() ? int16_t{-32767} : sample(cell, tile->second, place);
    }
    static bool contains(const Cell& cell, const ChartPosition& place) {
        return place.longitude >= cell.west && place.longitude <= cell.west + cell.width &&
               place.latitude <= cell.north && place.latitude >= cell.north - cell.height;
    }
    static double densityOf(const Cell& cell) {
        const double north = std::min(cell.north, 90.0), south = std::max(cell.north - cell.height, -90.0);
        const double east = std::min(cell.west + cell.width, 360.0);
        if ((east - cell.west) * (north - south) < 0.0001 || north < south || east < cell.west)
            return 0.0;
        return 1442401.0 * ((east - cell.west) * (north - south) / (cell.width * cell.height)) /
               calcConstrainedArea({cell.west, north}, {east, south});
    }
    static int16_t sample(const Cell& cell, const Tile& tile, const ChartPosition& place) {
        const double x = (place.longitude - cell.west) / cell.width * 1200;
        const double y = (cell.north - place.latitude) / cell.height * 1200;
        const double x0 = std::floor(x), x1 = std::ceil(x), y0 = std::floor(y), y1 = std::ceil(y);
        const auto get = [&](double column, double row) {
            return tile[static_cast<size_t>(row) * 1201 + static_cast<size_t>(column)];
        };
        const int16_t corners[] = {get(x0, y0), get(x1, y0), get(x0, y1), get(x1, y1)};
        if (std::find(corners, corners + 4, NoHeight) != corners + 4) {
            const auto usable = std::find_if(corners, corners + 4, [](int16_t height) { return height != NoHeight; });
            return usable == corners + 4 ? NoHeight : *usable;
        }
        const double fx = x1 > x0 ? x - x0 : 0, fy = y1 > y0 ? y - y0 : 0;
        return static_cast<int16_t>(std::round((corners[0] * (1 - fx) + corners[1] * fx) * (1 - fy) +
                                               (corners[2] * (1 - fx) + corners[3] * fx) * fy));
    }
};

class TerrainHeights : public TerrainFixture {
protected:
    void add(double west, double north, double width, const Tile& tile) {
        ASSERT_TRUE(cell(west, north, width));
        save(cell(west, north, width), tile);
        twin_.tiles[{west, north, width}] = tile;
    }
    SlowTwin twin_;
};

/// Relief of a few hundred metres with a hole here and there.
Tile roughTile(int shift) {
    return makeTile([shift](int row, int column) {
        if ((row / 100 + column / 150 + shift) % 7 == 0)
            return int{NoHeight};
        return (row % 300) + (column % 200) * 3 - 200 + shift * 1000;
    });
}

TEST_F(TerrainHeights, areThoseOfASlowTwin) {
    add(1, 43, 1, roughTile(1));
    add(0, 43, 1, roughTile(2));
    add(1, 42, 1, roughTile(3));
    add(0, 43, 2, roughTile(4));
    add(0, 44, 8, roughTile(5)); // the cells between are missing
    add(359, 43, 1, roughTile(6));
    add(320, 60, 80, roughTile(7));
    std::mt19937 random(std::random_device{}());
    const auto seed = random();
    random.seed(seed);
    std::uniform_real_distribution<double> degrees(-2.5, 2.5), exponent(-3.0, 3.0);
    TerrainSampler sampler(store_);
    ChartPosition place(1, 42);
    double density = 100.0;
    for (int i = 0; i < 100000; ++i) {
        place.longitude = 1.0 + degrees(random);
        place.latitude = 42.5 + 0.5 * degrees(random);
        if (i % 3 == 0) // on edges and grid lines
            place = {std::round(place.longitude * 4) / 4, std::round(place.latitude * 4) / 4};
        if (i % 7 == 0)
            density = std::pow(10.0, exponent(random));
        const float expected = twin_.getHeight(place, density);
        ASSERT_EQ(store_.getRoot()->getHeight(place, density, true, false), expected)
            << place.longitude << " " << place.latitude << " " << density << " seed " << seed;
        ASSERT_EQ(sampler.getHeight(place, density, true, false), expected)
            << place.longitude << " " << place.latitude << " " << density << " seed " << seed;
    }
}

TEST_F(TerrainHeights, takeTheNearestSampleWithoutInterpolation) {
    save(cell(1, 43, 1), makeTile([](int row, int column) { return row + 2 * column; }));
    EXPECT_EQ(heightAt(1.0 + 10.4 / 1200, 43 - 5.6 / 1200, 1e9, false), 26.0f);
    EXPECT_EQ(heightAt(1.0 + 10.4 / 1200, 43 - 5.6 / 1200), 26.0f); // 26.4
    EXPECT_EQ(heightAt(2.0, 42.0), 3600.0f);
}

TEST_F(TerrainHeights, withoutTilesAreMissing) {
    EXPECT_EQ(heightAt(1.5, 42.5), infinity);
    EXPECT_EQ(store_.getRoot()->getHeight({1.5, 42.5}, 200, true, true), 0.0f);
    EXPECT_EQ(store_.getMissCount(), 7u); // a file for each level, once
    heightAt(1.5, 42.5);
    EXPECT_EQ(store_.getMissCount(), 7u);
    save(cell(1, 43, 1), flatTile(33));
    EXPECT_EQ(heightAt(1.5, 42.5), infinity);
    store_.clearCache();
    store_.getRoot()->resetLoadable();
    EXPECT_EQ(heightAt(1.5, 42.5), 33.0f);
}

TEST_F(TerrainHeights, chooseTheLevelByDensity) {
    store_.clearCache();
    save(store_.getRoot(), flatTile(1));
    save(cell(0, 44, 8), flatTile(3));
    save(cell(1, 43, 1), flatTile(6));
    EXPECT_EQ(heightAt(1.5, 42.5, 0.0), 1.0f);
    EXPECT_EQ(heightAt(1.5, 42.5, cell(0, 44, 8)->getDensity()), 1.0f); // strictly below
    EXPECT_EQ(heightAt(1.5, 42.5, cell(0, 44, 8)->getDensity() * 1.01), 3.0f);
    EXPECT_EQ(heightAt(1.5, 42.5, 1e30), 6.0f);
    // Whatever the place, the answer is a height.
    for (const double longitude : {-1e300, -180.0, 0.0, 359.999999, 360.0, 720.0, 1e18})
        for (const double latitude : {-1e9, -90.0, 0.0, 90.0, 90.5, 1e300})
            EXPECT_TRUE(std::isfinite(heightAt(longitude, latitude))) << longitude << " " << latitude;
    for (const double wrong : {std::nan(""), HUGE_VAL})
        EXPECT_EQ(heightAt(wrong, 42.5), infinity);
    EXPECT_EQ(heightAt(1.5, -std::nan("")), infinity);
    EXPECT_EQ(heightAt(1.5, 42.5, std::nan("")), 1.0f);
    EXPECT_EQ(heightAt(361.5, 42.5), 6.0f);
}

TEST_F(TerrainHeights, fallBackToTheParentAndToldOnceOfDamage) {
    save(cell(0, 43, 2), flatTile(50));
    std::ofstream(path(cell(1, 43, 1))) << "rubbish";
    EXPECT_EQ(heightAt(1.5, 42.5), 50.0f);
    EXPECT_FALSE(cell(1, 43, 1)->isLoadable());
}

TEST_F(TerrainHeights, takeSeaForSeaOnly) {
    save(cell(0, 43, 2), flatTile(0));
    save(cell(0, 43, 1), flatTile(0));
    heightAt(0.5, 42.5);
    EXPECT_TRUE(cell(0, 43, 1)->isOcean());
    heightAt(0.5, 42.5, 80.0);
    EXPECT_FALSE(cell(0, 43, 2)->isOcean()) << "its other half is merely missing";
    save(cell(1, 43, 1), flatTile(9));
    EXPECT_EQ(heightAt(1.5, 42.5), 9.0f);
    const unsigned long misses = store_.getMissCount();
    store_.clearCache();
    EXPECT_EQ(heightAt(0.5, 42.5), 0.0f);
    EXPECT_EQ(store_.getMissCount(), misses) << "the sea opens no file";
}

TEST_F(TerrainHeights, giveMemoryBack) {
    save(cell(1, 43, 1), flatTile(5));
    for (const size_t limit : {19u, 17u, 15u, 13u, 11u, 9u, 9u}) {
        EXPECT_EQ(heightAt(1.5, 42.5), 5.0f);
        store_.freeMemory();
        EXPECT_EQ(store_.getCacheLimit(), limit);
    }
}

} // namespace
} // namespace skyvane
