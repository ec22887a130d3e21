#include "chart/areas/AreaFixture.h"
#include "chart/areas/AreaGrid.h"
#include "chart/areas/AreaUpdates.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/GreatCircle.h"

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

namespace skyvane {
namespace {

struct Rectangle {
    double west, east, south, north; ///< East above west, up to 360 more; west in 0 to 360.

    ChartPosition nw() const { return ChartPosition(west, north); }
    ChartPosition se() const { return ChartPosition(Angle360(east), south); }
};

/// More in common than an edge, in plain intervals: the slow twin.
bool overlaps(const IArea& area, const Rectangle& r) {
    const double tolerance = 2e-8;
    const ChartPosition &nw = area.getNWEdge(), &se = area.getSEEdge();
    if (std::min(nw.latitude, r.north) - std::max(se.latitude, r.south) < tolerance)
        return false;
    for (const double turn : {-360.0, 0.0, 360.0})
        if (std::min(se.longitude, r.east + turn) - std::max(nw.longitude, r.west + turn) > tolerance)
            return true;
    return false;
}

class AreaQueries : public AreaTest {
protected:
    /// The nodes that a walk from the root would end at, by one pass over all numbers.
    std::list<int> slowBestFitting(const Rectangle& r, double factor) {
        const double target = (r.east - r.west) * (r.north - r.south) * factor;
        std::vector<char> reached(AreaCount, 0), left(AreaCount, 0);
        reached[0] = 1;
        for (int index = 1; index < AreaCount; ++index) {
            const auto parent = static_cast<size_t>(getArea(index)->getParentIndex());
            const auto here = static_cast<size_t>(index);
            reached[here] = reached[parent] && target < getArea(static_cast<int>(parent))->getSquareDegrees() &&
                            overlaps(*getArea(index), r);
            left[parent] = left[parent] || reached[here];
        }
        std::list<int> result;
        for (int index = 0; index < AreaCount; ++index)
            if (reached[static_cast<size_t>(index)] && !left[static_cast<size_t>(index)])
                result.push_back(index);
        return result;
    }
};

Rectangle randomRectangle(std::mt19937& random, int round) {
    std::uniform_real_distribution<double> share(0.0, 1.0);
    const bool snapped = round % 3 == 0;
    const auto snap = [snapped](double x) { return snapped ? std::floor(x * 2.0) / 2.0 : x; };
    const double west = snap(share(random) * 359.0);
    const double width = snap(std::pow(share(random), 3) * 359.0) + (snapped ? 0.5 : 0.01);
    const double south = snap(-90.0 + share(random) * 178.0);
    const double height = snap(std::pow(share(random), 3) * (90.0 - south) * 0.9) + (snapped ? 0.5 : 0.01);
    return {west, std::min(west + width, west + 359.5), south, std::min(south + height, 90.0)};
}

TEST_F(AreaQueries, overlapAgreesWithPlainIntervals) {
    const unsigned seed = 8086;
    std::mt19937 random(seed);
    std::uniform_int_distribution<int> number(1, LastAreaIndex);
    int overlapping = 0;
    for (int round = 0; round < 300; ++round) {
        const Rectangle r = randomRectangle(random, round);
        for (int i = 0; i < 1000; ++i) {
            const int index = number(random);
            const bool overlap = getArea(index)->Overlap(r.nw(), r.se());
            overlapping += overlap;
            ASSERT_EQ(overlap, overlaps(*getArea(index), r))
                << "seed " << seed << ": area " << index << ", " << r.west << " to " << r.east << ", " << r.south
                << " to " << r.north;
        }
    }
    EXPECT_GT(overlapping, 1000);
}

std::vector<int> leafsOfGrid(const ChartPosition& nw, const ChartPosition& se) {
    std::vector<int> leafs;
    AreaGridView(nw, se).forEachLeaf([&leafs](int index) { leafs.push_back(index); });
    std::sort(leafs.begin(), leafs.end());
    return leafs;
}

TEST_F(AreaQueries, theGridFindsTheLeavesThatOverlap) {
    const unsigned seed = 32016;
    std::mt19937 random(seed);
    for (int round = 0; round < 60; ++round) {
        const Rectangle r = randomRectangle(random, round);
        std::vector<int> expected;
        for (int index = 0; index < AreaCount; ++index)
            if (getArea(index)->isLeaf() && overlaps(*getArea(index), r))
                expected.push_back(index);
        EXPECT_EQ(leafsOfGrid(r.nw(), r.se()), expected)
            << "seed " << seed << ": " << r.west << " to " << r.east << ", " << r.south << " to " << r.north;
    }
}

TEST_F(AreaQueries, theGridStandsItsEdges) {
    EXPECT_EQ(getLeafIndex(0, 0), 7);
    EXPECT_EQ(getLeafIndex(AreaGridColumns - 1, AreaGridRows - 1), LastAreaIndex);
    EXPECT_EQ(leafsOfGrid(ChartPosition(-180, 90), ChartPosition(180, -90)).size(), size_t(AreaLeafCount));
    EXPECT_EQ(leafsOfGrid(ChartPosition(0, 90), ChartPosition(360, -90)).size(), size_t(AreaLeafCount));
    EXPECT_EQ(leafsOfGrid(ChartPosition(0.0, 10.1), ChartPosition(0.0, 10.1)).size(), 1u);
    EXPECT_EQ(leafsOfGrid(ChartPosition(360.0, -90.0), ChartPosition(0.0, -90.0)).size(), 1u);
    EXPECT_EQ(leafsOfGrid(ChartPosition(359.9, 90.2), ChartPosition(0.2, 89.9)).size(), 2u) << "folded at the pole";
    EXPECT_TRUE(leafsOfGrid(ChartPosition(std::nan(""), 1.0), ChartPosition(2.0, 0.0)).empty());
    EXPECT_TRUE(leafsOfGrid(ChartPosition(1.0, 1.0), ChartPosition(2.0, HUGE_VAL)).empty());
}

TEST_F(AreaQueries, touchingIsNotOverlapping) {
    const IArea& area = leaf(7); // 0 to 0.5, 90 to 89.5
    EXPECT_FALSE(area.Overlap(ChartPosition(0.5, 89.8), ChartPosition(1.0, 89.6)));
    EXPECT_FALSE(area.Overlap(ChartPosition(359.0, 89.8), ChartPosition(360.0, 89.6)));
    EXPECT_FALSE(area.Overlap(ChartPosition(0.1, 89.5), ChartPosition(0.2, 89.0)));
    EXPECT_TRUE(area.Overlap(ChartPosition(359.0, 89.8), ChartPosition(0.1, 89.6)));
    EXPECT_TRUE(area.Overlap(ChartPosition(0.2, 89.8), ChartPosition(0.3, 89.6))) << "the area around it";
    EXPECT_TRUE(area.isInside(ChartPosition(0.5, 89.5))) << "an edge lies inside, though";
    EXPECT_TRUE(leaf(8).isInside(ChartPosition(0.5, 89.7)));
}

TEST_F(AreaQueries, bestFittingAreasAgreeWithTheSlowTwin) {
    const unsigned seed = 6502;
    std::mt19937 random(seed);
    for (int round = 0; round < 60; ++round) {
        const Rectangle r = randomRectangle(random, round);
        const double factor = round % 2 ? 1.0 : 0.05;
        std::list<int> expected;
        if (r.east <= 360.0) {
            expected = slowBestFitting(r, factor);
        } else {
            expected = slowBestFitting({r.west, r.west < 359.999 ? 359.999 : 360.0, r.south, r.north}, factor);
            expected.splice(expected.end(), slowBestFitting({0.0, r.east - 360.0, r.south, r.north}, factor));
        }
        EXPECT_EQ(getBestFittingAreaList(r.nw(), r.se(), factor), expected)
            << "seed " << seed << ": " << r.west << " to " << r.east << ", " << r.south << " to " << r.north;
    }
}

TEST_F(AreaQueries, nothingIsMissingAtTheSeam) {
    const std::list<int> areas = getBestFittingAreaList(ChartPosition(359.7, 10.2), ChartPosition(0.2, 9.8), 1.0);
    std::vector<ChartPosition> corners;
    for (const int area : areas)
        corners.push_back(getArea(area)->getNWEdge());
    ASSERT_EQ(corners.size(), 4u);
    EXPECT_EQ(corners[0].longitude, 359.5) << "the western piece first";
    EXPECT_EQ(corners[0].latitude, 10.5);
    EXPECT_EQ(corners[1].latitude, 10.0);
    EXPECT_EQ(corners[2].longitude, 0.0);
    EXPECT_EQ(corners[3].longitude, 0.0);
    // Slivers on either side still reach their leaf.
    EXPECT_EQ(getBestFittingAreaList(ChartPosition(359.9995, 10.2), ChartPosition(0.0, 10.1), 1.0).size(), 1u);
    EXPECT_EQ(getBestFittingAreaList(ChartPosition(359.9995, 10.2), ChartPosition(0.1, 10.1), 1.0).size(), 2u);
    EXPECT_EQ(getBestFittingAreaList(ChartPosition(360.0, 10.2), ChartPosition(0.1, 10.1), 1.0).size(), 1u);
}

TEST_F(AreaQueries, aViewSmallerThanALeafGivesTheLeavesItOverlaps) {
    std::list<int> areas = getBestFittingAreaList(ChartPosition(10.1, 45.3), ChartPosition(10.2, 45.2), 1.0);
    ASSERT_EQ(areas.size(), 1u);
    EXPECT_TRUE(getArea(areas.front())->isLeaf());
    EXPECT_EQ(getBestFittingAreaList(ChartPosition(10.45, 45.05), ChartPosition(10.55, 44.95), 1.0).size(), 4u);
    // As calcRectangleAround gives them in the southern hemisphere.
    areas = getBestFittingAreaList(ChartPosition(10.1, 360.0 - 20.2), ChartPosition(10.2, -20.3), 1.0);
    ASSERT_EQ(areas.size(), 1u);
    EXPECT_EQ(getArea(areas.front())->getNWEdge().latitude, -20.0);
    EXPECT_EQ(getBestFittingAreaList(ChartPosition(-180.0, 90.0), ChartPosition(180.0, -90.0), 1.0), std::list<int>{0});
    EXPECT_TRUE(getBestFittingAreaList(ChartPosition(std::nan(""), 1.0), ChartPosition(2.0, 0.0), 1.0).empty());
}

TEST_F(AreaQueries, leavesComeDepthFirst) {
    std::list<int> leafs = getLeafesFromAreaList({5, 8, -3, AreaCount});
    EXPECT_EQ(leafs, (std::list<int>{7, 8, 10, 11, 13, 14, 16, 17, 8}));
    getLeafesFromAreaList(leafs, {6, LastAreaIndex, 999999});
    EXPECT_EQ(leafs, (std::list<int>{7, 8, 10, 11, 13, 14, 16, 17, 8, 7, 8, LastAreaIndex}));
    EXPECT_EQ(getLeafesFromAreaList({0}).size(), size_t(AreaLeafCount));
}

TEST_F(AreaQueries, vicinityAgreesWithALookAtEverything) {
    const unsigned seed = 68000;
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> longitude(-180.0, 360.0), latitude(-75.0, 75.0), offset(-3.0, 3.0),
        range(1.0, 150.0);
    std::uniform_int_distribution<int> flags(0, 7);
    std::vector<ChartPosition> towns = {{0.0, 50.0}, {179.9, -17.0}, {359.9, 5.0}};
    for (int i = 0; i < 40; ++i)
        towns.emplace_back(longitude(random), latitude(random));
    for (const ChartPosition& town : towns)
        for (int i = 0; i < 40; ++i) {
            const int id = static_cast<int>(elements_.size());
            const ChartPosition place(town.longitude + offset(random), town.latitude + offset(random));
            elements_[id] = std::make_unique<PointElement>(std::vector<ChartPosition>{place},
                                                           i % 2 ? IChartElement::AIRPORT : IChartElement::VOR,
                                                           static_cast<char>(flags(random)));
            updateAreaTree(getArea(0), elements_[id].get(), id, table());
        }
    const int missing = static_cast<int>(elements_.size());
    leaf(7).addElement(missing, reinterpret_cast<const uint8_t*>("\7\0\0")); // an id that no element has
    for (const ChartPosition& town : towns)
        for (const bool airportsOnly : {false, true}) {
            const double miles = range(random);
            std::set<int> expected;
            for (const auto& [id, element] : elements_) {
                char bytes[3];
                element->writeStaticData(bytes);
                const bool airport = element->getType() == IChartElement::AIRPORT;
                const bool hidden = airport && (bytes[1] & 6) == 6;
                if (!hidden && (airport || !airportsOnly) &&
                    calcDistance2(town, element->getPosition()) <= miles * 1852.0)
                    expected.insert(id);
            }
            const std::list<int> found = findChartElementsInVicinity(town, miles, airportsOnly);
            EXPECT_EQ(std::set<int>(found.begin(), found.end()), expected)
                << "seed " << seed << ": " << town.longitude << " " << town.latitude << " " << miles;
        }
    EXPECT_TRUE(findChartElementsInVicinity(ChartPosition(0, 0), std::nan(""), false).empty());
}

} // namespace
} // namespace skyvane
