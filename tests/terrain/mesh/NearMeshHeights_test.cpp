#include "terrain/mesh/NearMeshHeights.h"

#include "terrain/TerrainFixture.h"
#include "terrain/mesh/NearMesh.h"
#include "terrain/tree/TerrainSampler.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

namespace skyvane {
namespace {

/// Whether a place lies within a triangle, and its height there: the slow twin looks at all triangles.
bool heightInTriangle(const irr::core::vector3d<float>* corner, double x, double z, double& height) {
    const auto side = [&](int a, int b) {
        return (static_cast<double>(corner[b].X) - corner[a].X) * (z - corner[a].Z) -
               (static_cast<double>(corner[b].Z) - corner[a].Z) * (x - corner[a].X);
    };
    const double a = side(1, 2), b = side(2, 0), c = side(0, 1);
    if (!((a >= 0 && b >= 0 && c >= 0) || (a <= 0 && b <= 0 && c <= 0)) || a + b + c == 0.0)
        return false;
    height = (a * corner[0].Y + b * corner[1].Y + c * corner[2].Y) / (a + b + c);
    return true;
}

TEST(NearMeshHeights, LiesOnTheTrianglesAsTheyAreDrawn) {
    constexpr int side = 61;
    NearMesh near(side);
    TerrainMesh mesh;
    const std::string noTiles = "/nonexistent/";
    TerrainStore store(noTiles, 1);
    TerrainSampler sampler(store);
    near.build(sampler, {1.5, 42.5}, mesh);
    for (TerrainVertex& vertex : mesh.vertices)
        vertex.position.Y =
            500.0f + 300.0f * std::sin(vertex.position.X / 900.0f) * std::cos(vertex.position.Z / 700.0f);
    const std::vector<uint16_t> indices = near.makeIndices();
    const NearMeshHeights heights(side);
    const auto positionOf = [&](int vertex) { return mesh.vertices[static_cast<size_t>(vertex)].position; };
    std::mt19937 random(5);
    std::uniform_real_distribution<double> metres(-9990.0, 9990.0);
    double worst = 0.0;
    for (int i = 0; i < 500; ++i) {
        const double spread = i % 2 ? 1.0 : 0.1;
        const double x = metres(random) * spread, z = metres(random) * spread;
        float height = 0.0f;
        ASSERT_TRUE(heights.sample(x, z, positionOf, height));
        double expected = 0.0;
        bool found = false;
        for (size_t t = 0; t < indices.size() && !found; t += 3) {
            const irr::core::vector3d<float> corners[] = {positionOf(indices[t]), positionOf(indices[t + 1]),
                                                          positionOf(indices[t + 2])};
            found = heightInTriangle(corners, x, z, expected);
        }
        ASSERT_TRUE(found);
        worst = std::max(worst, std::abs(expected - static_cast<double>(height)));
    }
    EXPECT_LT(worst, 4.0) << "where a neighbour's triangle is taken for the right one";
    float height = 0.0f;
    EXPECT_FALSE(heights.sample(10001.0, 0.0, positionOf, height));
    EXPECT_FALSE(heights.sample(std::nan(""), 0.0, positionOf, height));
}

} // namespace
} // namespace skyvane
