#include "displays/shapes/PolygonSweep.h"
#include "displays/shapes/Strokes.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

const ShapeRect everywhere(-1e9, -1e9, 1e9, 1e9);

/// What triangles cover, weighted by their vertices' alpha: pixels.
double coverage(const ShapeMesh& mesh) {
    double sum = 0.0;
    for (size_t i = 0; i + 2 < mesh.indices.size(); i += 3) {
        const auto& a = mesh.vertices[mesh.indices[i]];
        const auto& b = mesh.vertices[mesh.indices[i + 1]];
        const auto& c = mesh.vertices[mesh.indices[i + 2]];
        const double area = std::fabs((b.place.X - a.place.X) * (c.place.Y - a.place.Y) -
                                      (c.place.X - a.place.X) * (b.place.Y - a.place.Y)) /
                            2.0;
        sum += area * ((a.argb >> 24) + (b.argb >> 24) + (c.argb >> 24)) / (3.0 * 255.0);
    }
    return sum;
}

bool covers(const PolygonSweep& sweep, const ShapePoint& place) {
    for (const auto& part : sweep.getTrapezoids()) {
        if (place.Y <= part.y0 || place.Y > part.y1)
            continue;
        const double share = (place.Y - part.y0) / (part.y1 - part.y0);
        if (place.X > part.left0 + share * (part.left1 - part.left0) &&
            place.X < part.right0 + share * (part.right1 - part.right0))
            return true;
    }
    return false;
}

double areaOf(const PolygonSweep& sweep) {
    double sum = 0.0;
    for (const auto& part : sweep.getTrapezoids())
        sum += (part.y1 - part.y0) * ((part.right0 - part.left0) + (part.right1 - part.left1)) / 2.0;
    return sum;
}

/// A coast: a circle with ever smaller bays.
ShapePath coast(size_t count, double radius, std::mt19937& random) {
    std::uniform_real_distribution<double> bay(0.97, 1.0);
    ShapePath path;
    for (size_t i = 0; i < count; ++i) {
        const double angle = 2.0 * 3.14159265358979 * static_cast<double>(i) / static_cast<double>(count);
        const double r = radius * bay(random) * (1.0 + 0.2 * std::sin(9.0 * angle) + 0.05 * std::cos(71.0 * angle));
        path.emplace_back(r * std::cos(angle), r * std::sin(angle));
    }
    return path;
}

TEST(Strokes, coverTheirWidthAndLength) {
    for (const float width : {0.5f, 1.0f, 3.0f, 12.0f}) {
        ShapeMesh line, corner, ring;
        addStroke(line, {{10.0, 10.0}, {110.0, 10.0}}, {width, 0xffffffff, false, 0.0f, 0.0f}, everywhere);
        EXPECT_NEAR(coverage(line), 100.0 * width, 0.5) << width;
        addStroke(corner, {{0.0, 0.0}, {100.0, 0.0}, {100.0, 100.0}}, {width, 0xffffffff, false, 0.0f, 0.0f},
                  everywhere);
        EXPECT_NEAR(coverage(corner), 200.0 * width, 2.0) << width; // a mitre, no notch and no overlap
        addStroke(ring, {{0.0, 0.0}, {100.0, 0.0}, {100.0, 100.0}, {0.0, 100.0}}, {width, 0xffffffff, true, 0.0f, 0.0f},
                  everywhere);
        EXPECT_NEAR(coverage(ring), 400.0 * width, 2.0) << width;
    }
}

TEST(Strokes, dashesGoOnAlongTheWholeLine) {
    ShapePath bent;
    for (int i = 0; i <= 40; ++i)
        bent.emplace_back(5.0 * i, 20.0 * std::sin(i));
    double length = 0.0;
    for (size_t i = 1; i < bent.size(); ++i)
        length += bent[i].getDistanceFrom(bent[i - 1]);
    ShapeMesh dashed;
    addStroke(dashed, bent, {2.0f, 0xffffffff, false, 6.0f, 4.0f}, everywhere);
    EXPECT_NEAR(coverage(dashed), 2.0 * 0.6 * length, 0.04 * length);
    // What is drawn of a far longer line doesn't depend on what lies outside, nor does its time.
    ShapeMesh part;
    addStroke(part, {{-1e7, 5.0}, {1e7, 5.0}}, {2.0f, 0xffffffff, false, 6.0f, 4.0f}, {0.0, 0.0, 1000.0, 10.0});
    EXPECT_LT(part.vertices.size(), 1000u);
    EXPECT_NEAR(coverage(part), 2.0 * 0.6 * 1000.0, 60.0);
}

TEST(Strokes, whatIsOutOfViewIsLeftOut) {
    ShapePath zigzag;
    for (int i = 0; i < 10000; ++i)
        zigzag.emplace_back(i, i % 2 ? 500.0 : 480.0);
    ShapeMesh mesh;
    addStroke(mesh, zigzag, {1.0f, 0xffffffff, false, 0.0f, 0.0f}, {0.0, 0.0, 100.0, 100.0});
    EXPECT_TRUE(mesh.isEmpty());
    addStroke(mesh, zigzag, {1.0f, 0xffffffff, false, 0.0f, 0.0f}, {0.0, 450.0, 100.0, 550.0});
    EXPECT_GT(mesh.indices.size(), 1000u);
    EXPECT_LT(mesh.indices.size(), 10000u);
}

TEST(Bands, lieInsideWhicheverWayThePolygonGoes) {
    ShapePath square{{0.0, 0.0}, {100.0, 0.0}, {100.0, 100.0}, {0.0, 100.0}};
    for (int way = 0; way < 2; ++way) {
        ShapeMesh inner, outer;
        addBand(inner, square, 10.0, 0xffffffff, 0xffffffff, everywhere);
        EXPECT_NEAR(coverage(inner), 100.0 * 100.0 - 80.0 * 80.0, 1e-3);
        for (const auto& vertex : inner.vertices)
            EXPECT_TRUE(vertex.place.X >= 0.0f && vertex.place.X <= 100.0f && vertex.place.Y >= 0.0f &&
                        vertex.place.Y <= 100.0f);
        addBand(outer, square, -10.0, 0xffffffff, 0xffffffff, everywhere);
        EXPECT_NEAR(coverage(outer), 120.0 * 120.0 - 100.0 * 100.0, 1e-3);
        std::reverse(square.begin(), square.end());
    }
}

TEST(Shapes, hitsAreMeasuredInPixels) {
    const ShapePath square{{0.0, 0.0}, {10.0, 0.0}, {10.0, 10.0}, {0.0, 10.0}};
    EXPECT_TRUE(isInside(square, {5.0, 5.0}));
    EXPECT_FALSE(isInside(square, {15.0, 5.0}));
    EXPECT_FALSE(isInside({}, {0.0, 0.0}));
    EXPECT_DOUBLE_EQ(distanceToPath(square, false, {-3.0, 5.0}), std::sqrt(34.0));
    EXPECT_DOUBLE_EQ(distanceToPath(square, true, {-3.0, 5.0}), 3.0);
    EXPECT_TRUE(std::isinf(distanceToPath({}, true, {0.0, 0.0})));
}

TEST(PolygonSweep, agreesWithTheEvenOddRule) {
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(-100.0, 100.0);
    for (int round = 0; round < 60; ++round) {
        ShapePath path;
        for (int i = 0; i < 4 + round; ++i) // the later ones cross themselves hundreds of times
            path.emplace_back(place(random), round % 3 == 0 ? std::round(place(random) / 20.0) * 20.0 : place(random));
        PolygonSweep sweep(path);
        while (!sweep.advance(50)) {
        }
        ASSERT_FALSE(sweep.hasFailed());
        for (int i = 0; i < 300; ++i) {
            const ShapePoint probe(place(random), place(random));
            if (distanceToPath(path, true, probe) < 1e-3)
                continue;
            ASSERT_EQ(covers(sweep, probe), isInside(path, probe)) << "round " << round;
        }
    }
}

TEST(PolygonSweep, aHundredThousandVerticesInSmallSteps) {
    std::mt19937 random(11);
    const ShapePath path = coast(100000, 1000.0, random);
    PolygonSweep sweep(path);
    int steps = 1;
    while (!sweep.advance(20000))
        ++steps;
    EXPECT_GT(steps, 10);
    EXPECT_FALSE(sweep.hasFailed());
    EXPECT_NEAR(areaOf(sweep), std::fabs(doubleArea(path)) / 2.0, 1e-4 * std::fabs(doubleArea(path)));
    EXPECT_LT(sweep.getTrapezoids().size(), 2 * path.size());
}

TEST(PolygonSweep, badPolygons) {
    const double nan = std::nan("");
    const ShapePath bad[] = {{},
                             {{1.0, 1.0}},
                             {{0.0, 0.0}, {1.0, 1.0}},
                             {{0.0, 5.0}, {9.0, 5.0}, {4.0, 5.0}},
                             {{0.0, 0.0}, {nan, 1.0}, {2.0, 2.0}},
                             {{3.0, 3.0}, {3.0, 3.0}, {3.0, 3.0}, {3.0, 3.0}}};
    for (const ShapePath& path : bad) {
        PolygonSweep sweep(path);
        EXPECT_TRUE(sweep.advance(1000));
        EXPECT_NEAR(areaOf(sweep), 0.0, 1e-9);
    }
}

} // namespace
} // namespace skyvane
