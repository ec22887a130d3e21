#include "chart/areas/AreaFixture.h"
#include "chart/areas/AreaUpdates.h"
#include "chart/geodesy/Angles.h"
#include "chart/geodesy/LocalFrame.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace skyvane {
namespace {

ChartPosition normalised(const ChartPosition& p) {
    return ChartPosition(Angle0to360(p.longitude), Latitudinize(p.latitude));
}

/// The places that decide, step by step along the outline.
std::vector<ChartPosition> walk(const IChartElement& element) {
    const int n = element.getAreaDefiningPointCount();
    std::vector<ChartPosition> places;
    for (int i = 0; i < n; ++i) {
        const ChartPosition from = normalised(element.getAreaDefiningPoint(i));
        places.push_back(from);
        if (n == 1 || (n == 2 && i == 1))
            continue;
        auto way = ChartPosition2Vector3df64(from, normalised(element.getAreaDefiningPoint((i + 1) % n)), 0.0);
        const double length = way.getLength();
        if (length > 5000000.0 || length <= 10000.0)
            continue;
        way.normalize();
        for (double walked = 0.0; walked < length; walked += 10000.0)
            places.push_back(normalised(Vector3df642ChartPosition(from, way * walked)));
    }
    return places;
}

/// In plain arithmetic, asked of every leaf: the slow twin.
bool contains(const IArea& area, const ChartPosition& place) {
    double offset = std::fabs(place.longitude - (area.getNWEdge().longitude + area.getSEEdge().longitude) / 2.0);
    if (offset > 180.0)
        offset = 360.0 - offset;
    return offset <= 0.2501 && place.latitude <= area.getNWEdge().latitude + 0.0001 &&
           place.latitude >= area.getSEEdge().latitude - 0.0001;
}

class AreaUpdates : public AreaTest {
protected:
    std::vector<int> leavesOf(int id) {
        std::vector<int> leaves;
        for (int index = 0; index < AreaCount; ++index)
            if (const AreaLeaf* area = getArea(index)->asLeaf())
                for (const int element : area->getElements())
                    if (element == id)
                        leaves.push_back(index);
        return leaves;
    }
};

TEST_F(AreaUpdates, enterTheLeavesThatTheOutlineTouches) {
    const unsigned seed = 1977;
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> longitude(-180.0, 360.0), latitude(-80.0, 80.0), offset(-4.0, 4.0);
    std::vector<PointElement> elements;
    for (int i = 0; i < 12; ++i) {
        const ChartPosition centre(i < 4 ? 359.9 : longitude(random), latitude(random));
        std::vector<ChartPosition> points;
        for (int corner = 0; corner < 1 + i % 6; ++corner)
            points.emplace_back(centre.longitude + offset(random), centre.latitude + offset(random));
        elements.emplace_back(points);
    }
    elements.emplace_back(std::vector<ChartPosition>{{0.0, 0.0}, {60.0, 0.0}}); // too long to be sampled
    elements.emplace_back(std::vector<ChartPosition>{{10.0, 89.0}, {190.0, 89.0}, {100.0, 87.0}});
    elements.emplace_back(std::vector<ChartPosition>{{12.5, 45.5}}); // a corner of four leaves
    for (size_t i = 0; i < elements.size(); ++i)
        updateAreaTree(getArea(0), &elements[i], static_cast<int>(i), table());
    for (size_t i = 0; i < elements.size(); ++i) {
        const std::vector<ChartPosition> places = walk(elements[i]);
        std::vector<int> expected;
        for (int index = 0; index < AreaCount; ++index) {
            const IArea& area = *getArea(index);
            const auto within = [&area](const ChartPosition& place) { return contains(area, place); };
            if (area.isLeaf() && std::any_of(places.begin(), places.end(), within))
                expected.push_back(index);
        }
        EXPECT_EQ(leavesOf(static_cast<int>(i)), expected) << "seed " << seed << " element " << i;
        EXPECT_FALSE(expected.empty());
    }
    EXPECT_EQ(leavesOf(14).size(), 4u);
    EXPECT_TRUE(checkStaticDataSanity(table(), 0));
}

TEST_F(AreaUpdates, takeElementsOutWithTheirBytes) {
    for (int i = 0; i < 9; ++i) {
        const PointElement element({{10.3, 45.3}}, IChartElement::VOR, static_cast<char>(i), 'z');
        updateAreaTree(getArea(0), &element, i % 4, table());
    }
    deleteElementFromAreaTree(0, table());
    const int index = getBestFittingAreaList(ChartPosition(10.2, 45.4), ChartPosition(10.4, 45.2), 1.0).front();
    const AreaLeaf& area = leaf(index);
    ASSERT_EQ(area.getElements().size(), 6u);
    for (size_t i = 0; i < 6; ++i) {
        EXPECT_NE(area.getElements()[i], 0);
        EXPECT_EQ(area.getStaticBytes()[3 * i], IChartElement::VOR);
        EXPECT_EQ(area.getStaticBytes()[3 * i + 1] % 4, area.getElements()[i]) << "bytes follow their element";
        EXPECT_EQ(area.getStaticBytes()[3 * i + 2], 'z');
    }
    EXPECT_TRUE(checkStaticDataSanity(table(), 0));
    for (int id = 1; id < 4; ++id)
        deleteElementFromAreaTree(id, table());
    EXPECT_TRUE(area.getElements().empty());
    EXPECT_TRUE(area.getStaticBytes().empty());
}

TEST_F(AreaUpdates, sanityIsThreeBytesForEachElementBelow) {
    leaf(8).appendElement(1);
    EXPECT_FALSE(checkStaticDataSanity(table(), 0));
    EXPECT_FALSE(checkStaticDataSanity(table(), 8));
    EXPECT_TRUE(checkStaticDataSanity(table(), 7));
    EXPECT_TRUE(checkStaticDataSanity(table(), 17264));
    EXPECT_TRUE(checkStaticDataSanity(table(), AreaCount));
    leaf(8).appendStaticBytes(reinterpret_cast<const uint8_t*>("abcd"), 4);
    EXPECT_FALSE(checkStaticDataSanity(table(), 8));
}

TEST_F(AreaUpdates, standElementsWithoutAPlace) {
    const double nan = std::nan("");
    const PointElement nowhere({{nan, 0.0}, {10.0, HUGE_VAL}, {10.0, 45.0}});
    updateAreaTree(getArea(0), &nowhere, 5, table());
    EXPECT_EQ(leavesOf(5).size(), 4u) << "one point has a place, where four leaves meet";
    const PointElement empty({});
    updateAreaTree(getArea(0), &empty, 6, table());
    updateAreaTree(getArea(0), nullptr, 6, table());
    updateAreaTree(nullptr, &empty, 6, table());
    EXPECT_TRUE(leavesOf(6).empty());
}

} // namespace
} // namespace skyvane
