#include "chart/areas/AreaFixture.h"
#include "chart/areas/AreaQueries.h"

#include <cmath>
#include <random>

namespace skyvane {
namespace {

using AreaTree = AreaTest;

/// The number of the leaf at a column and a row of half degrees, by counting subtrees.
int numberOfLeaf(int column, int row) {
    const int lonSplits[] = {5, 3, 3, 2, 2, 2, 2}, latSplits[] = {5, 3, 3, 2, 2, 2, 1};
    const int below[] = {17263, 1918, 213, 53, 13, 3, 1};
    int number = 0, columns = 720, rows = 360;
    for (int level = 0; level < 7; ++level) {
        columns /= lonSplits[level];
        rows /= latSplits[level];
        number += 1 + (column / columns * latSplits[level] + row / rows) * below[level];
        column %= columns;
        row %= rows;
    }
    return number;
}

TEST_F(AreaTree, numbersEveryLeafOfTheWorld) {
    EXPECT_EQ(numberOfLeaf(0, 0), 7);
    EXPECT_EQ(numberOfLeaf(719, 359), LastAreaIndex);
    for (int column = 0; column < 720; ++column)
        for (int row = 0; row < 360; ++row) {
            const AreaLeaf& area = leaf(numberOfLeaf(column, row));
            ASSERT_EQ(area.getNWEdge().longitude, column * 0.5) << column << " " << row;
            ASSERT_EQ(area.getNWEdge().latitude, 90.0 - row * 0.5);
            ASSERT_EQ(area.getSEEdge().longitude, (column + 1) * 0.5);
            ASSERT_EQ(area.getSEEdge().latitude, 90.0 - (row + 1) * 0.5);
        }
}

TEST_F(AreaTree, hasTheGoldenNumbers) {
    for (int index = 1; index <= 7; ++index)
        EXPECT_EQ(getArea(index)->getParentIndex(), index - 1) << "the first path";
    EXPECT_EQ(getArea(0)->getParentIndex(), -1);
    EXPECT_EQ(getArea(8)->getParentIndex(), 6);
    EXPECT_TRUE(getArea(8)->isLeaf());
    EXPECT_EQ(getArea(8)->getNWEdge().longitude, 0.5);
    const AreaNode& root = *getArea(0)->asNode();
    ASSERT_EQ(root.getChildCount(), 25);
    EXPECT_EQ(root.getChild(1), 17264);
    EXPECT_EQ(getArea(17264)->getNWEdge().latitude, 54.0) << "north to south first";
    EXPECT_EQ(getArea(17264)->getNWEdge().longitude, 0.0);
    EXPECT_EQ(root.getChild(24), 414313);
    EXPECT_FALSE(getArea(-1));
    EXPECT_FALSE(getArea(AreaCount));
    ASSERT_TRUE(getArea(LastAreaIndex));
    EXPECT_EQ(getArea(LastAreaIndex)->getSEEdge().longitude, 360.0);
    EXPECT_EQ(getArea(LastAreaIndex)->getSEEdge().latitude, -90.0);
}

TEST_F(AreaTree, hasSoManyCellsOfEachSize) {
    std::map<double, int> cells;
    for (int index = 0; index < AreaCount; ++index) {
        const IArea& area = *getArea(index);
        ++cells[area.getSquareDegrees()];
        const AreaNode* node = area.asNode();
        for (int i = 0; node && i < node->getChildCount(); ++i)
            ASSERT_EQ(getArea(node->getChild(i))->getParentIndex(), index);
    }
    const std::map<double, int> golden = {{64800, 1}, {2592, 25}, {288, 225},    {32, 2025},
                                          {8, 8100},  {2, 32400}, {0.5, 129600}, {0.25, 259200}};
    EXPECT_EQ(cells, golden);
}

TEST(AreaNode, refusesChildrenOutOfStep) {
    AreaNode node(ChartPosition(0, 1), ChartPosition(1, 0), -1);
    EXPECT_TRUE(node.addChild(10));
    EXPECT_TRUE(node.addChild(14));
    EXPECT_FALSE(node.addChild(17));
    EXPECT_TRUE(node.addChild(18));
    EXPECT_EQ(node.getChildCount(), 3);
    EXPECT_EQ(node.getChild(2), 18);
}

TEST_F(AreaTree, findsTheLeavesOfAPosition) {
    const unsigned seed = 515;
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> longitude(0.0, 360.0), latitude(-90.0, 90.0);
    std::uniform_int_distribution<int> halfDegree(0, 719), kind(0, 3);
    for (int round = 0; round < 60; ++round) {
        ChartPosition place(longitude(random), latitude(random));
        if (round % 3 == 0) // near corners: within the tolerance, or twice as far
            place = ChartPosition(0.5 * halfDegree(random) + (kind(random) < 2 ? 0.00005 : 0.0002),
                                  0.25 * halfDegree(random) - 90.0 - (kind(random) < 2 ? 0.00005 : 0.0002));
        if (round == 6)
            place = ChartPosition(359.99995, 0.0);
        if (round == 9)
            place = ChartPosition(0.0, 90.0);
        std::map<int, bool> expected, found;
        for (int index = 0; index < AreaCount; ++index) {
            if (!getArea(index)->isLeaf())
                continue;
            const ChartPosition &nw = getArea(index)->getNWEdge(), &se = getArea(index)->getSEEdge();
            const double fromCentre = std::remainder(place.longitude - (nw.longitude + 0.25), 360.0);
            if (std::fabs(fromCentre) <= 0.2501 &&
                std::fabs(place.latitude - (nw.latitude + se.latitude) / 2) <= 0.2501)
                expected[index] = true;
        }
        hlp_findAreas(0, this, place, found);
        EXPECT_EQ(found, expected) << "seed " << seed << ": " << place.longitude << " " << place.latitude;
        EXPECT_FALSE(found.empty());
    }
    std::map<int, bool> found;
    hlp_findAreas(0, this, ChartPosition(0.0, 0.0), found);
    EXPECT_EQ(found.size(), 4u) << "the corner of four leaves, two of them across the seam";
    found.clear();
    hlp_findAreas(0, this, ChartPosition(std::nan(""), 0.0), found);
    EXPECT_TRUE(found.empty());
}

} // namespace
} // namespace skyvane
