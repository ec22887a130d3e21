#include "chart/geodesy/Triangulate.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <random>

using namespace skyvane;
using Point = Triangulate::Point;
using Contour = Triangulate::Contour;

namespace {

double triangleArea(const Point& a, const Point& b, const Point& c) {
    return 0.5 * ((double(b.X) - a.X) * (double(c.Y) - a.Y) - (double(b.Y) - a.Y) * (double(c.X) - a.X));
}

/// Whether the point lies inside by counting crossings: the slow, independent answer.
bool isInside(const Contour& contour, double x, double y) {
    bool inside = false;
    for (size_t i = 0, j = contour.size() - 1; i < contour.size(); j = i++) {
        const Point &a = contour[i], &b = contour[j];
        if ((a.Y > y) != (b.Y > y) && x < (double(b.X) - a.X) * (y - a.Y) / (double(b.Y) - a.Y) + a.X)
            inside = !inside;
    }
    return inside;
}

/// Simple by construction: radii at rising angles about a centre.
Contour starPolygon(std::mt19937& random, int vertices) {
    std::uniform_real_distribution<double> radius(20.0, 100.0), jitter(0.1, 0.9);
    Contour contour;
    for (int i = 0; i < vertices; ++i) {
        const double angle = 2.0 * 3.14159265358979 * (i + jitter(random)) / vertices;
        const double r = radius(random);
        contour.emplace_back(static_cast<float>(300 + r * std::cos(angle)),
                             static_cast<float>(-200 + r * std::sin(angle)));
    }
    return contour;
}

std::vector<Point> process(const Contour& contour, bool expected) {
    std::vector<Point> corners;
    corners.reserve(3 * contour.size());
    EXPECT_EQ(Triangulate::Process(contour, corners), expected);
    return corners;
}

TEST(Triangulate, coversRandomPolygonsInBothOrders) {
    const unsigned seed = 20240611;
    std::mt19937 random(seed);
    for (int round = 0; round < 200; ++round) {
        Contour contour = starPolygon(random, 4 + round % 60);
        if (round % 2)
            std::reverse(contour.begin(), contour.end());
        const std::vector<Point> corners = process(contour, true);
        ASSERT_EQ(corners.size(), 3 * (contour.size() - 2)) << "seed " << seed << " round " << round;
        double sum = 0.0;
        for (size_t i = 0; i < corners.size(); i += 3) {
            const double area = triangleArea(corners[i], corners[i + 1], corners[i + 2]);
            EXPECT_GT(area, 0.0);
            sum += area;
            const double x = (double(corners[i].X) + corners[i + 1].X + corners[i + 2].X) / 3.0;
            const double y = (double(corners[i].Y) + corners[i + 1].Y + corners[i + 2].Y) / 3.0;
            EXPECT_TRUE(area < 1e-3 || isInside(contour, x, y)) << "seed " << seed << " round " << round;
        }
        double polygon = 0.0;
        for (size_t i = 0; i < contour.size(); ++i)
            polygon += triangleArea(Point(0, 0), contour[i], contour[(i + 1) % contour.size()]);
        EXPECT_NEAR(sum, std::fabs(polygon), 1e-4 * std::fabs(polygon)) << "seed " << seed << " round " << round;
        EXPECT_NEAR(Triangulate::Area(contour), polygon, 1e-3 * std::fabs(polygon));
    }
}

TEST(Triangulate, collinearVerticesDisturbNothing) {
    const Contour square = {{0, 0}, {5, 0}, {10, 0}, {10, 5}, {10, 10}, {5, 10}, {0, 10}, {0, 5}};
    const std::vector<Point> corners = process(square, true);
    double sum = 0.0;
    for (size_t i = 0; i < corners.size(); i += 3)
        sum += triangleArea(corners[i], corners[i + 1], corners[i + 2]);
    EXPECT_DOUBLE_EQ(sum, 100.0);
}

TEST(Triangulate, refusesWhatHasNoInside) {
    EXPECT_TRUE(process({}, false).empty());
    EXPECT_TRUE(process({{0, 0}, {1, 1}}, false).empty());
    EXPECT_TRUE(process({{0, 0}, {1, 1}, {2, 2}, {3, 3}}, false).empty()) << "all on a line";
    process({{0, 0}, {10, 10}, {10, 0}, {0, 10}}, false); // crosses itself
    const float nan = std::nanf("");
    EXPECT_TRUE(process({{nan, 0}, {1, nan}, {nan, nan}}, false).empty());
}

TEST(Triangulate, keepsWithinTheReservedMemory) {
    std::vector<Point> corners;
    EXPECT_FALSE(Triangulate::Process({{0, 0}, {1, 0}, {0, 1}}, corners));
    EXPECT_TRUE(corners.empty());
}

TEST(Triangulate, verticesOnAnEdgeBlockTheEar) {
    EXPECT_TRUE(Triangulate::InsideTriangle(0, 0, 4, 0, 0, 4, 2, 0));
    EXPECT_TRUE(Triangulate::InsideTriangle(0, 0, 4, 0, 0, 4, 1, 1));
    EXPECT_FALSE(Triangulate::InsideTriangle(0, 0, 4, 0, 0, 4, 3, 2));
    const Contour contour = {{0, 0}, {4, 0}, {0, 4}, {2, 0}};
    const int V[] = {0, 1, 2, 3};
    EXPECT_TRUE(Triangulate::Snip(contour, 0, 1, 2, 3, V));
    EXPECT_FALSE(Triangulate::Snip(contour, 0, 1, 2, 4, V));
    EXPECT_FALSE(Triangulate::Snip(contour, 2, 1, 0, 3, V)) << "the wrong way round";
}

} // namespace
