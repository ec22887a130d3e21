#include "chart/geodesy/PolygonTests.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace skyvane {
namespace {

using Point = PolygonRay::Point;

/// Crossings of a horizontal ray, in double: the slow twin.
bool isInside(const std::vector<Point>& contour, const Point& p) {
    bool inside = false;
    for (size_t i = 0, j = contour.size() - 1; i < contour.size(); j = i++) {
        const double ax = contour[i].X, ay = contour[i].Y, bx = contour[j].X, by = contour[j].Y;
        if ((ay > p.Y) != (by > p.Y) && p.X < (bx - ax) * (p.Y - ay) / (by - ay) + ax)
            inside = !inside;
    }
    return inside;
}

double distanceFromOutline(const std::vector<Point>& contour, const Point& p) {
    double nearest = 1e9;
    for (size_t i = 0, j = contour.size() - 1; i < contour.size(); j = i++) {
        const Point edge = contour[j] - contour[i];
        const float t = std::max(0.0f, std::min(1.0f, (p - contour[i]).dotProduct(edge) / edge.getLengthSQ()));
        nearest = std::min(nearest, static_cast<double>(p.getDistanceFrom(contour[i] + edge * t)));
    }
    return nearest;
}

TEST(PolygonTests, theVoteAgreesWithTheSlowTwin) {
    const unsigned seed = 31337;
    std::mt19937 random(seed);
    std::uniform_real_distribution<float> radius(300.0f, 1000.0f), coordinate(-1000.0f, 1000.0f);
    int wrong = 0, asked = 0;
    for (int round = 0; round < 200; ++round) {
        std::vector<Point> contour;
        const int n = 3 + round % 20;
        for (int i = 0; i < n; ++i) {
            const float angle = 6.2831853f * static_cast<float>(round % 2 ? i : n - i) / static_cast<float>(n);
            const float r = radius(random);
            contour.emplace_back(r * std::cos(angle), r * std::sin(angle));
        }
        for (int i = 0; i < 50; ++i) {
            const Point p(coordinate(random), coordinate(random));
            if (distanceFromOutline(contour, p) < 5.0)
                continue;
            ++asked;
            wrong += isInsidePolygon(contour, p, Point(-1000, -1000), Point(1000, 1000), 7) != isInside(contour, p);
        }
    }
    // A ray that passes two edges within 2 of each other is wrong; the vote makes that rare, not impossible.
    EXPECT_LE(wrong, asked / 1000) << "of " << asked << ", seed " << seed;
}

TEST(PolygonTests, raysThroughVerticesAreOutvoted) {
    const std::vector<Point> square = {{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    EXPECT_TRUE(isInsidePolygon(square, Point(50, 50), Point(0, 0), Point(100, 100), 4));
    EXPECT_TRUE(isInsidePolygon(square, Point(1, 99), Point(0, 0), Point(100, 100), 3));
    const std::vector<Point> arrow = {{0, 0}, {100, 50}, {0, 100}, {50, 50}};
    EXPECT_FALSE(isInsidePolygon(arrow, Point(20, 50), Point(0, 0), Point(100, 100), 5));
    EXPECT_TRUE(isInsidePolygon(arrow, Point(80, 50), Point(0, 0), Point(100, 100), 5));
}

TEST(PolygonTests, whatHasNoInsideHoldsNothing) {
    const std::vector<Point> line = {{0, 0}, {100, 0}};
    EXPECT_FALSE(isInsidePolygon(line, Point(50, 0), Point(0, 0), Point(100, 0), 3));
    const std::vector<Point> square = {{0, 0}, {100, 0}, {100, 100}, {0, 100}};
    EXPECT_FALSE(isInsidePolygon(square, Point(50, 50), Point(0, 0), Point(100, 100), 0));
    const float nan = std::nanf("");
    EXPECT_FALSE(isInsidePolygon(square, Point(nan, 50), Point(0, 0), Point(100, 100), 3));
}

TEST(PolygonTests, trianglesLeaveOutTheirEdges) {
    const Point a(0, 0), b(4, 0), c(0, 4);
    EXPECT_TRUE(isPointInTriangle(Point(1, 1), a, b, c));
    EXPECT_TRUE(isPointInTriangle(Point(1, 1), c, b, a)) << "either order";
    EXPECT_FALSE(isPointInTriangle(Point(2, 0), a, b, c)) << "on an edge";
    EXPECT_FALSE(isPointInTriangle(Point(2, 0.00002f), a, b, c)) << "nearer than the tolerance";
    EXPECT_TRUE(isPointInTriangle(Point(2, 0.0001f), a, b, c));
    EXPECT_FALSE(isPointInTriangle(Point(3, 3), a, b, c));
    EXPECT_FALSE(isPointInTriangle(Point(0, 0), a, a, a));
}

} // namespace
} // namespace skyvane
