#include "chartmaker/ground/GroundShapes.h"

#include "chart/geodesy/LocalFrame.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace skyvane {
namespace {

/// From a place to a line, on the plane round the place.
double metresToLine(const ChartPosition& place, const GroundLine& line) {
    double least = 1e12;
    for (size_t i = 0; i + 1 < line.size(); ++i) {
        const auto a = ChartPosition2Vector3df64(place, line[i], 0.0);
        const auto along = ChartPosition2Vector3df64(place, line[i + 1], 0.0) - a;
        const double t = std::clamp(-a.dotProduct(along) / std::max(along.getLengthSQ(), 1e-12), 0.0, 1.0);
        least = std::min(least, (a + along * t).getLength());
    }
    return least;
}

GroundLine wander(uint32_t seed, double latitude, int points) {
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> step(-0.0007, 0.0012);
    GroundLine line{{10.0, latitude}};
    while (static_cast<int>(line.size()) < points)
        line.push_back({line.back().longitude + step(random), line.back().latitude + step(random) * 0.7});
    return line;
}

/// The plane's crossing count; no part of what is tested.
bool isInside(const GroundLine& ring, double x, double y) {
    bool inside = false;
    for (size_t i = 0, j = ring.size() - 1; i < ring.size(); j = i++)
        if ((ring[i].latitude > y) != (ring[j].latitude > y) && x < (ring[j].longitude - ring[i].longitude) *
                                                                            (y - ring[i].latitude) /
                                                                            (ring[j].latitude - ring[i].latitude) +
                                                                        ring[i].longitude)
            inside = !inside;
    return inside;
}

GroundLine star(double radius, int points, double wave) {
    GroundLine ring;
    for (int i = 0; i < points; ++i) {
        const double angle = 6.283185307179586 * i / points;
        const double r = radius * (1.0 + wave * std::sin(angle * 37.0));
        ring.push_back({7.1 + r * std::cos(angle), 46.2 + r * std::sin(angle)});
    }
    return ring;
}

TEST(GroundShapes, SimplifiedLinesKeepTheirPromise) {
    for (const double latitude : {0.0, -42.5, 64.0, 81.0})
        for (const double tolerance : {5.0, 50.0, 400.0}) {
            const GroundLine line = wander(static_cast<uint32_t>(latitude + tolerance), latitude, 700);
            const GroundLine simple = simplifyLine(line, tolerance);
            EXPECT_LT(simple.size(), line.size());
            double worst = 0.0;
            for (const ChartPosition& place : line)
                worst = std::max(worst, metresToLine(place, simple));
            EXPECT_LE(worst, tolerance * 1.0001) << latitude;
            EXPECT_GE(worst, tolerance * 0.3) << "nothing was simplified at " << latitude;
            EXPECT_EQ(simple.front().longitude, line.front().longitude);
            EXPECT_EQ(simple.back().latitude, line.back().latitude);
        }
}

TEST(GroundShapes, SimplifiedPolygonsKeepTheirPromise) {
    bool isWhole = true;
    const GroundPolygon polygon{star(0.2, 3000, 0.02), {star(0.05, 800, 0.02)}};
    const std::vector<GroundPolygon> simple = simplifyPolygon(polygon, 60.0, isWhole);
    ASSERT_EQ(simple.size(), 1u);
    ASSERT_EQ(simple[0].holes.size(), 1u);
    EXPECT_LT(simple[0].outline.size(), 900u);
    GroundLine closed = simple[0].outline;
    closed.push_back(closed.front());
    for (const ChartPosition& place : polygon.outline)
        EXPECT_LE(metresToLine(place, closed), 60.01);
    EXPECT_TRUE(isWhole);
}

TEST(GroundShapes, BrokenPolygonsAreMendedOrNothing) {
    bool isWhole = true;
    const GroundPolygon bow{{{1.0, 1.0}, {2.0, 2.0}, {2.0, 1.0}, {1.0, 2.0}}, {}};
    EXPECT_EQ(simplifyPolygon(bow, 10.0, isWhole).size(), 2u);
    EXPECT_TRUE(simplifyPolygon({{{1.0, 1.0}, {2.0, 2.0}, {1.0, 1.0}}, {}}, 10.0, isWhole).empty());
    EXPECT_TRUE(simplifyPolygon({{{1.0, 1.0}, {2.0, 2.0}}, {}}, 10.0, isWhole).empty());
    EXPECT_TRUE(isWhole);
}

TEST(GroundShapes, SplitPolygonsCoverTheSameGround) {
    bool isWhole = true;
    const GroundPolygon polygon{star(0.8, 9001, 0.1), {star(0.3, 500, 0.1)}};
    const std::vector<GroundLine> rings = splitPolygon(polygon, isWhole);
    for (const GroundLine& ring : rings) {
        EXPECT_LE(ring.size(), MaxPolygonPoints);
        const auto [west, east] = std::minmax_element(
            ring.begin(), ring.end(), [](const auto& a, const auto& b) { return a.longitude < b.longitude; });
        EXPECT_LE(east->longitude - west->longitude, MaxPolygonDegrees + 1e-8);
    }
    std::mt19937 random(4);
    std::uniform_real_distribution<double> offset(-0.9, 0.9);
    for (int i = 0; i < 2000; ++i) {
        const double x = 7.1 + offset(random), y = 46.2 + offset(random);
        const bool isWanted = isInside(polygon.outline, x, y) && !isInside(polygon.holes[0], x, y);
        const auto holders =
            std::count_if(rings.begin(), rings.end(), [&](const GroundLine& ring) { return isInside(ring, x, y); });
        EXPECT_EQ(holders, isWanted ? 1 : 0) << x << " " << y;
    }
    EXPECT_TRUE(isWhole);
}

TEST(GroundShapes, ClipsAtTheEdgesOfBoxes) {
    bool isWhole = true;
    const std::vector<GroundBox> boxes{{179.0, 0.0, 180.0, 1.0}, {-180.0, 0.0, -179.0, 1.0}};
    EXPECT_EQ(clipLine({{178.0, 0.5}, {179.5, 0.5}}, boxes, isWhole).at(0).front().longitude, 179.0);
    EXPECT_TRUE(clipLine({{100.0, 0.5}, {120.0, 0.5}}, boxes, isWhole).empty());
    const GroundLine square{{-179.5, 0.5}, {-170.0, 0.5}, {-170.0, 0.7}, {-179.5, 0.7}};
    const std::vector<GroundPolygon> inside = clipPolygon({square, {}}, boxes, isWhole);
    ASSERT_EQ(inside.size(), 1u);
    for (const ChartPosition& place : inside[0].outline)
        EXPECT_LE(place.longitude, -179.0);
    EXPECT_TRUE(isWhole);
}

TEST(GroundShapes, TellWhatCannotBeCut) {
    const double nowhere = std::nan("");
    const GroundPolygon broken{{{1.0, 1.0}, {3.0, 1.0}, {nowhere, 2.0}, {3.0, 3.0}, {1.0, 3.0}}, {}};
    bool isWhole = true;
    clipPolygon(broken, {{0.0, 0.0, 2.0, 2.0}}, isWhole);
    EXPECT_FALSE(isWhole);
    isWhole = true;
    splitPolygon(broken, isWhole);
    EXPECT_FALSE(isWhole);
}

TEST(GroundShapes, JoinsWhatMeetsAndNothingElse) {
    const ChartPosition a(0, 0), b(1, 0), c(2, 0), d(3, 0), e(2, 1);
    EXPECT_EQ(joinLines({{a, b}, {c, b}, {c, d}}).size(), 1u);
    EXPECT_EQ(joinLines({{c, b}, {a, b}, {d, c}}).at(0).size(), 4u);
    EXPECT_EQ(joinLines({{a, b}, {b, c}, {c, d}, {c, e}}).size(), 3u) << "a junction stays one";
    EXPECT_EQ(joinLines({{a, b}, {b, e, a}}).at(0).size(), 4u) << "a ring ends where it began";
    EXPECT_EQ(joinLines({{a, b, e, a}, {a, c}}).size(), 2u);
    EXPECT_EQ(splitLine({a, b, c, d, e}, 3).size(), 2u);
    EXPECT_EQ(splitLine({a, b, c, d, e}, 4).back().size(), 2u);
}

TEST(GroundShapes, LeavesOutSegmentsThatAreThere) {
    const ChartPosition a(0, 0), b(1, 0), c(2, 0), d(3, 0);
    const std::vector<GroundLine> left = leaveOutRepeated({{a, b, c, d}, {d, c}}, {{c, b}});
    ASSERT_EQ(left.size(), 2u);
    EXPECT_EQ(left[0].size(), 2u);
    EXPECT_EQ(left[1].front().longitude, 2.0);
}

} // namespace
} // namespace skyvane
