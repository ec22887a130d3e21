#include "chart/geodesy/LocalFrame.h"
#include "support/AllocationCounter.h"
#include "terrain/TerrainFixture.h"
#include "terrain/mesh/MeshApron.h"
#include "terrain/mesh/NearMesh.h"
#include "terrain/mesh/TerrainColor.h"
#include "terrain/mesh/TerrainImage.h"
#include "terrain/mesh/WideMesh.h"
#include "terrain/tree/TerrainSampler.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace skyvane {
namespace {

using Vector = irr::core::vector3d<float>;

class TerrainMeshes : public TerrainFixture {
protected:
    /// Ground that rises to the east by 100 m a degree, and to the north by 200.
    void saveSlope() {
        for (const double width : {1.0, 2.0, 4.0, 8.0, 16.0})
            for (const double west : {0.0, width, 2 * width, 3 * width})
                for (double north = 44.0; north > 40.0; north -= width <= 2 ? 1.0 : width / 2.0)
                    if (MMTerrainNode* node = west < 4.0 ? cell(west, north, width) : nullptr) {
                        const double height = node->getNWEdge().latitude - node->getSEEdge().latitude;
                        save(node, makeTile([&](int row, int column) {
                                 return std::round(1000 + 100 * (west + width * column / 1200) +
                                                   200 * (north - 40 - height * row / 1200));
                             }));
                    }
    }
    static bool isClockwise(const TerrainMesh& mesh, const uint16_t* triangle) {
        const Vector a = mesh.vertices[triangle[0]].position, b = mesh.vertices[triangle[1]].position,
                     c = mesh.vertices[triangle[2]].position;
        return (b.Z - a.Z) * (c.X - a.X) - (b.X - a.X) * (c.Z - a.Z) > 0.0f;
    }
    /// Of the wide mesh's triangle over a place, without the skirt's.
    static double heightOn(const TerrainMesh& mesh, double x, double z) {
        static const std::vector<uint16_t> indices = WideMesh::makeIndices();
        for (size_t i = 6 * 230; i < indices.size(); i += 3) {
            const Vector a = mesh.vertices[indices[i]].position, b = mesh.vertices[indices[i + 1]].position,
                         c = mesh.vertices[indices[i + 2]].position;
            const double area = static_cast<double>((b.X - a.X) * (c.Z - a.Z) - (c.X - a.X) * (b.Z - a.Z));
            const double s = ((x - a.X) * (c.Z - a.Z) - (c.X - a.X) * (z - a.Z)) / area;
            const double t = ((b.X - a.X) * (z - a.Z) - (x - a.X) * (b.Z - a.Z)) / area;
            if (s >= -1e-6 && t >= -1e-6 && s + t <= 1.0 + 1e-6)
                return a.Y + s * (b.Y - a.Y) + t * (c.Y - a.Y);
        }
        return NAN;
    }
    TerrainSampler sampler_{store_};
    TerrainMesh mesh_;
};

TEST_F(TerrainMeshes, coverTheGroundAroundTheAircraft) {
    saveSlope();
    NearMesh near(181);
    const ChartPosition centre(1.4, 42.3);
    near.build(sampler_, centre, mesh_);
    ASSERT_EQ(mesh_.vertices.size(), 32761u);
    EXPECT_FALSE(mesh_.undefined);
    EXPECT_FALSE(mesh_.incomplete);
    const TerrainVertex& middle = mesh_.vertices[90 * 181 + 90];
    EXPECT_EQ(middle.position, Vector(0, 1600, 0));
    EXPECT_NEAR(mesh_.vertices[91].position.Z, -10000, 0.01);
    EXPECT_LT(mesh_.vertices[91 + 90 * 181].position.X, 70.0f) << "vertices are drawn inwards";
    for (const TerrainVertex& vertex : mesh_.vertices) {
        const ChartPosition place = Vector3df2ChartPosition(centre, vertex.position);
        ASSERT_NEAR(vertex.position.Y, 1000 + 100 * place.longitude + 200 * (place.latitude - 40), 2.0);
        ASSERT_NEAR(vertex.normal.getLength(), 1.0f, 1e-5f);
    }
    // From the corners that lie far apart, where the metre that heights are rounded to says little.
    EXPECT_NEAR(mesh_.vertices[0].normal.Z, -200.0 / 111195, 0.003);
    const std::vector<uint16_t> indices = near.makeIndices();
    ASSERT_EQ(indices.size(), 180u * 180u * 6u);
    for (size_t i = 0; i < indices.size(); i += 3)
        ASSERT_TRUE(isClockwise(mesh_, &indices[i])) << i;
    EXPECT_EQ(std::set<uint16_t>(indices.begin(), indices.end()).size(), 32761u);
    const AllocationCounter allocations;
    near.build(sampler_, centre, mesh_);
    EXPECT_EQ(allocations.count(), 0u);
}

TEST_F(TerrainMeshes, reachToTheHorizon) {
    saveSlope();
    save(store_.getRoot(), flatTile(7));
    const WideMesh wide;
    wide.build(sampler_, {1.4, 42.3}, mesh_);
    ASSERT_EQ(mesh_.vertices.size(), 32660u);
    EXPECT_NEAR(mesh_.radiusMetres, 223000.0, 500.0);
    EXPECT_NEAR(mesh_.vertices.back().position.getLength(), mesh_.radiusMetres, 50.0);
    EXPECT_NEAR(mesh_.vertices[230].position.Z, 5136.6, 0.1);
    EXPECT_EQ(mesh_.vertices[3].position.Y, mesh_.minimum - (mesh_.maximum - mesh_.minimum)) << "the skirt";
    EXPECT_EQ(mesh_.minimum, 7.0f) << "no tile but the root's there";
    const std::vector<uint16_t> indices = WideMesh::makeIndices();
    ASSERT_EQ(indices.size(), 194580u);
    for (size_t i = 0; i < indices.size(); i += 3)
        ASSERT_TRUE(isClockwise(mesh_, &indices[i])) << i;
}

TEST_F(TerrainMeshes, sayWhenThereIsNothing) {
    NearMesh near(16);
    near.build(sampler_, {1.4, 42.3}, mesh_);
    EXPECT_TRUE(mesh_.undefined);
    EXPECT_TRUE(mesh_.incomplete);
    EXPECT_FALSE(mesh_.vertices[17].isKnown);
    EXPECT_EQ(mesh_.vertices[17].position.Y, 0.0f);
    EXPECT_EQ(mesh_.maximum, 1.0f);
    save(store_.getRoot(), flatTile(-400));
    store_.clearCache();
    store_.getRoot()->resetLoadable();
    for (const ChartPosition& place : {ChartPosition(0, 0), ChartPosition(360, 90), ChartPosition(-180, -90)}) {
        TerrainSampler fresh(store_);
        near.build(fresh, place, mesh_);
        EXPECT_FALSE(mesh_.undefined);
        EXPECT_EQ(mesh_.minimum, place.latitude > 80 ? -400.0f : -400.0f);
        EXPECT_EQ(mesh_.maximum, 1.0f);
    }
    near.build(sampler_, {NAN, NAN}, mesh_);
    EXPECT_TRUE(mesh_.undefined);
}

TEST_F(TerrainMeshes, sayWhereAHoleLooksLikeTheSea) {
    std::vector<int16_t> holed = flatTile(300);
    std::fill(holed.begin() + 601 * TileSide, holed.end(), NoHeight); // from 1 degree south on
    save(cell(200, 0, 4), holed);
    TerrainSampler sampler(store_);
    NearMesh(181).build(sampler, {201.0, -0.99}, mesh_);
    EXPECT_FALSE(mesh_.undefined);
    EXPECT_TRUE(mesh_.incomplete);
    EXPECT_FALSE(mesh_.vertices.front().isKnown) << "south";
    EXPECT_EQ(mesh_.vertices.front().position.Y, 0.0f);
    EXPECT_TRUE(mesh_.vertices.back().isKnown);
    EXPECT_EQ(mesh_.vertices.back().position.Y, 300.0f);
}

TEST_F(TerrainMeshes, dontTakeASingleSampleForALandscape) {
    save(cell(0, 43, 2), flatTile(500));
    save(cell(0, 44, 16), flatTile(700));
    save(store_.getRoot(), flatTile(900));
    const struct {
        double longitude;
        float height;
        bool isKnown;
    } places[] = {{1.0, 500, true}, {3.0, 700, false}, {30.0, 900, false}};
    for (const auto& place : places) {
        TerrainSampler sampler(store_);
        const TerrainSampler::Height fine = sampler.sample({place.longitude, 42.5}, 140.0);
        EXPECT_EQ(fine.metres, place.height);
        EXPECT_EQ(fine.isKnown, place.isKnown) << place.longitude;
        const TerrainSampler::Height coarse = sampler.sample({place.longitude, 42.5}, 2.0);
        EXPECT_EQ(coarse.isKnown, place.height < 900) << place.longitude;
    }
    NearMesh near(181);
    TerrainSampler sampler(store_);
    near.build(sampler, {2.05, 42.5}, mesh_); // 4 km beyond the finer tile
    EXPECT_TRUE(mesh_.incomplete);
    EXPECT_FALSE(mesh_.undefined);
}

TEST_F(TerrainMeshes, meetWithoutAStep) {
    // The finer tiles know ridges that the coarse ones don't.
    for (const double west : {0.0, 4.0})
        save(cell(west, 44, 4),
             makeTile([](int row, int column) { return 900 + 90 * ((row / 40 + column / 30) % 3); }));
    save(cell(0, 44, 16), makeTile([](int row, int column) { return 1000 + (row + column) / 10; }));
    save(cell(0, 44, 8), makeTile([](int row, int column) { return 1000 + (row + column) / 20; }));
    NearMesh near(61);
    near.build(sampler_, {3.9, 42.9}, mesh_);
    TerrainMesh wide;
    const double x = 3100.0, z = -2200.0;
    WideMesh().build(sampler_, Vector3df642ChartPosition({3.9, 42.9}, {-x, 0.0, -z}), wide);
    const auto wideVertex = [&wide](int i) { return wide.vertices[static_cast<size_t>(i)]; };
    const auto nearVertex = [this](int i) { return mesh_.vertices[static_cast<size_t>(i)]; };
    const MeshApron apron(61);
    TerrainMesh skin;
    apron.build(nearVertex, wideVertex, x, z, skin.vertices);
    ASSERT_EQ(static_cast<int>(skin.vertices.size()), apron.getVertexCount());
    const size_t rim = 4 * 60;
    double steps = 0.0;
    for (size_t i = 0; i < skin.vertices.size(); ++i) {
        const TerrainVertex& vertex = skin.vertices[i];
        const double out = std::max(std::abs(vertex.position.X), std::abs(vertex.position.Z));
        // The slow way: whichever triangle of the wide mesh lies there.
        const double wideHeight = heightOn(wide, vertex.position.X + x, vertex.position.Z + z);
        ASSERT_NEAR(vertex.normal.getLength(), 1.0f, 1e-5f);
        if (i < rim) {
            EXPECT_NEAR(out, 10000.0, 0.01);
            steps = std::max(steps, std::abs(vertex.position.Y - wideHeight));
        } else {
            const double slope = (vertex.position.Y - skin.vertices[i - rim].position.Y) /
                                 (out - std::max(std::abs(skin.vertices[i - rim].position.X),
                                                 std::abs(skin.vertices[i - rim].position.Z)));
            EXPECT_LT(std::abs(slope), 0.5) << i;
        }
        if (out > 10000.0 + MeshApron::FadeMetres - 1.0) {
            EXPECT_NEAR(vertex.position.Y, wideHeight, 1.0) << i;
        }
    }
    EXPECT_GT(steps, 40.0) << "there was one to be taken away";
    // Its edge is the near mesh's, vertex by vertex, and no triangle is turned over.
    for (size_t i = 0; i < rim; ++i) {
        const auto is = [&](const TerrainVertex& each) { return each.position == skin.vertices[i].position; };
        EXPECT_TRUE(std::any_of(mesh_.vertices.begin(), mesh_.vertices.end(), is));
    }
    const std::vector<uint16_t> indices = apron.makeIndices();
    for (size_t i = 0; i < indices.size(); i += 3)
        ASSERT_TRUE(isClockwise(skin, &indices[i])) << i;
    const AllocationCounter allocations;
    apron.build(nearVertex, wideVertex, x, z, skin.vertices);
    EXPECT_EQ(allocations.count(), 0u);
}

TEST_F(TerrainMeshes, moveAheadOfTheAircraft) {
    const ChartPosition east = moveAhead({359.99, 60}, {0.01, 60}, 150.0);
    EXPECT_NEAR(east.longitude, 0.01 + 150.0 / (MetresPerDegree * 0.5), 1e-6);
    EXPECT_NEAR(east.latitude, 60.0, 1e-9);
    EXPECT_EQ(moveAhead({5, 60}, {5, 60}, 150.0).longitude, 5.0);
}

TEST_F(TerrainMeshes, fillImages) {
    saveSlope();
    std::vector<uint32_t> pixels(400 * 200);
    const TerrainImageFigures figures = fillTerrainImage(sampler_, {1, 42.5}, {2, 42}, 400, 200, pixels.data());
    EXPECT_FALSE(figures.undefined);
    EXPECT_NEAR(pixels[0] & 0xffff, 12000.0 + 1600.0, 2.0);
    EXPECT_NEAR(figures.average, 1000 + 150 + 450, 2.0);
    EXPECT_LT(figures.minimum, figures.maximum);
    // The ground rises to the north east, so normals lean to the south west.
    EXPECT_LE(pixels[401] >> 24, 127u);
    EXPECT_LE(pixels[401] >> 16 & 0xff, 128u);
    const TerrainImageFigures none = fillTerrainImage(sampler_, {100, 42}, {101, 41}, 2, 2, pixels.data());
    EXPECT_TRUE(none.undefined);
    EXPECT_EQ(none.maximum, 40000.0f);
    EXPECT_EQ(none.minimum, -40000.0f);
    EXPECT_EQ(pixels[0], 128u << 24 | 128u << 16 | TerrainImageUnknown) << "not the sea";
}

TEST(TerrainColor, warns) {
    // No overlay: between lowland and upland, at 1.0 of the height and full brightness.
    EXPECT_EQ(calcTerrainColor(3000, 0, 0, 1000, false, false), 0xff005091u);
    EXPECT_EQ(calcTerrainColor(0, 0, 0, 100, false, false), 0xff005091u);
    EXPECT_EQ(calcTerrainColor(3000, 1000, 0, 1000, false, false), 0xffc8c8c8u);
    EXPECT_EQ(calcTerrainColor(9000, 400, 0, 1000, false, false), 0xff3a2700u); // upland at 0.52
    // Red from 30 m on, yellow at 183 m, nothing above; brightness is 0.5 + half.
    EXPECT_EQ(calcTerrainColor(1030, 1000, 0, 1000, true, false), 0xfff13232u);
    EXPECT_EQ(calcTerrainColor(500, 1000, 0, 1000, true, false), 0xfff13232u);
    EXPECT_EQ(calcTerrainColor(1183, 1000, 0, 1000, true, false), 0xfff1f132u);
    EXPECT_EQ(calcTerrainColor(1184, 1000, 0, 1000, true, false), 0xffc8c8c8u);
    EXPECT_EQ(calcTerrainColor(1184, 1000, 0, 1000, true, true) >> 24, 0u);
    EXPECT_EQ(calcTerrainColor(1000, 1000, 0, 1000, true, true) >> 24, 192u);
    EXPECT_EQ(calcTerrainColor(1184, 0, 0, 1000, true, true) >> 24, 128u);
    // The dim one, on both sides, without a shader only.
    EXPECT_EQ(calcTerrainColor(1000, 1000, 0, 1000, false, false, TerrainShading::None), 0xffaf3232u);
    EXPECT_EQ(calcTerrainColor(817, 1000, 0, 1000, false, false, TerrainShading::None), 0xffcbcb32u);
    EXPECT_EQ(calcTerrainColor(816, 1000, 0, 1000, false, false, TerrainShading::None), 0xffc8c8c8u);
    EXPECT_EQ(calcTerrainColor(9000, 5, 5, 5, false, false) >> 24, 255u); // nothing divides by the range
}

} // namespace
} // namespace skyvane
