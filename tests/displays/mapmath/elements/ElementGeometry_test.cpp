#include "chart/elements/ObstructionElement.h"
#include "chart/geodesy/Angles.h"
#include "displays/mapmath/elements/GroundFill.h"
#include "displays/mapmath/elements/MapAffine.h"
#include "displays/mapmath/elements/ObstructionGroups.h"

#include <cmath>
#include <gtest/gtest.h>

namespace skyvane {
namespace {

/// 100 pixels a degree of longitude, north up.
MapAffine northUp(const ChartPosition& reference) {
    return {reference, {500.0, 400.0}, {100.0, 0.0}, {0.0, -140.0}};
}

TEST(MapAffine, goesTheShorterWayRound) {
    const MapAffine affine = northUp({179.5, 42.0});
    EXPECT_NEAR(affine.toPixels(ChartPosition(-179.5, 43.0)).X, 600.0, 1e-9);
    EXPECT_NEAR(affine.toPixels(ChartPosition(180.5, 43.0)).Y, 260.0, 1e-9);
    ShapePath path;
    affine.project({{179.0, 42.0}, {-179.0, 42.0}, {179.0, 43.0}}, path);
    EXPECT_NEAR(path[1].X - path[0].X, 200.0, 1e-9);
    EXPECT_NEAR(path[2].X, path[0].X, 1e-9);
    affine.project({}, path);
    EXPECT_TRUE(path.empty());
    MapAffine turned = affine;
    turned.east = ShapePoint(0.0, 100.0);
    EXPECT_NEAR(turned.getTurnDegrees(), 90.0, 1e-9);
}

TEST(MapAffine, seesWhatReachesIntoTheView) {
    const MapAffine affine = northUp({179.5, 42.0});
    const ShapeRect view(0.0, 0.0, 1000.0, 800.0);
    EXPECT_TRUE(affine.canSee({179.0, 42.5}, {-179.0, 41.5}, view));  // across the antimeridian
    EXPECT_TRUE(affine.canSee({175.0, 60.0}, {-170.0, 20.0}, view));  // all around it
    EXPECT_FALSE(affine.canSee({160.0, 42.5}, {170.0, 41.5}, view));  // west of it
    EXPECT_FALSE(affine.canSee({179.0, 60.0}, {-179.0, 50.0}, view)); // north of it
    EXPECT_TRUE(affine.canSee({-170.0, 90.0}, {100.0, -90.0}, view)); // most of the earth
    MapAffine turned = affine;
    turned.east = ShapePoint(0.0, 100.0);
    turned.north = ShapePoint(140.0, 0.0);
    EXPECT_TRUE(turned.canSee({181.0, 46.0}, {182.0, 45.0}, view));
    EXPECT_FALSE(affine.canSee({181.0, 46.0}, {182.0, 45.0}, view));
}

/// Pixels that triangles cover.
double areaOf(const ShapeMesh& mesh) {
    double sum = 0.0;
    for (size_t i = 0; i + 2 < mesh.indices.size(); i += 3) {
        const auto a = mesh.vertices[mesh.indices[i]].place, b = mesh.vertices[mesh.indices[i + 1]].place,
                   c = mesh.vertices[mesh.indices[i + 2]].place;
        sum += std::fabs((b.X - a.X) * (c.Y - a.Y) - (c.X - a.X) * (b.Y - a.Y)) / 2.0;
    }
    return sum;
}

TEST(GroundFill, fillsItsPolygonInAnyView) {
    std::vector<ChartPosition> lake;
    for (int i = 0; i < 500; ++i) {
        const double angle = i * 2.0 * 3.14159265358979 / 500.0, r = 1.0 + 0.3 * std::sin(7.0 * angle);
        lake.emplace_back(Angle180(179.9 + r * std::cos(angle)), 42.0 + r * std::sin(angle));
    }
    GroundFill fill(lake, groundDetailDegrees(groundDetailStep(1.0 / 140.0)));
    const MapAffine affine = northUp({179.0, 42.0});
    const ShapeRect view(0.0, 0.0, 5000.0, 5000.0);
    ShapeMesh mesh;
    fill.addTo(mesh, affine, 0xff0000ff, view);
    EXPECT_TRUE(mesh.isEmpty()); // not before it is done
    while (!fill.advance(100)) {
    }
    fill.addTo(mesh, affine, 0xff0000ff, view);
    ShapePath path;
    affine.project(lake, path);
    EXPECT_NEAR(areaOf(mesh), std::fabs(doubleArea(path)) / 2.0, 0.01 * std::fabs(doubleArea(path)));
    mesh.clear();
    fill.addTo(mesh, affine, 0xff0000ff, {-500.0, -500.0, -400.0, -400.0});
    EXPECT_TRUE(mesh.isEmpty());
    EXPECT_TRUE(fill.isOf(lake));
    lake.back().latitude += 0.1;
    lake.pop_back();
    EXPECT_FALSE(fill.isOf(lake));
}

TEST(GroundFill, detailFollowsTheScale) {
    EXPECT_EQ(groundDetailStep(1e-9), 0);
    EXPECT_EQ(groundDetailStep(std::nan("")), 0);
    for (const double degrees : {1e-5, 1e-4, 1e-3, 1e-2}) {
        const double detail = groundDetailDegrees(groundDetailStep(degrees));
        EXPECT_LE(detail, 0.5 * degrees);
        EXPECT_GT(detail, 0.2 * degrees);
    }
}

TEST(ObstructionGroups, neighboursAreOne) {
    ObstructionGroups groups;
    groups.start({0.0, 10.0}, 0.1, 0.1);
    ObstructionElement mast;
    mast.position = {1.01, 42.01};
    mast.altitudeMslFeet = 900;
    groups.add(mast, 5, {100.0, 100.0});
    mast.position = {1.09, 42.02};
    mast.altitudeMslFeet = 1200;
    mast.hasKnownLighting = true;
    groups.add(mast, 6, {110.0, 100.0});
    mast.position = {1.11, 42.02};
    groups.add(mast, 7, {112.0, 100.0});
    ASSERT_EQ(groups.getGroups().size(), 2u);
    const auto& first = groups.getGroups()[0];
    EXPECT_EQ(first.index, 5);
    EXPECT_EQ(first.members.getCount(), 2);
    EXPECT_EQ(first.members.getHighestMslFeet(), 1200);
    EXPECT_NEAR(first.members.getPosition().X, 105.0f, 1e-3f);
    EXPECT_TRUE(first.isLit);
    groups.start({0.0, 10.0}, 0.1, 0.1); // the same picture goes on
    EXPECT_EQ(groups.getGroups().size(), 2u);
    groups.start({0.0, 11.0}, 0.1, 0.1);
    EXPECT_TRUE(groups.getGroups().empty());
}

} // namespace
} // namespace skyvane
