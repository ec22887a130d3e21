#include "displays/glide/GliderGrid.h"

#include "displays/shapes/ShapeMesh.h"

#include <gtest/gtest.h>

namespace skyvane {
namespace {

using Rect = irr::core::rect<int>;

TEST(GliderGrid, colours) {
    EXPECT_EQ(glidergrid::groundColor(0, 0), 0xff000080u);
    EXPECT_EQ(glidergrid::groundColor(0, 1), 0xff000055u) << "256 / 3";
    EXPECT_EQ(glidergrid::groundColor(8, 2), 0xff00802au) << "128 / 3";
    EXPECT_EQ(glidergrid::groundColor(8, 3), 0xff008000u);
    EXPECT_EQ(glidergrid::textColor(0, 0), 0xffffff7fu);
    EXPECT_EQ(glidergrid::textColor(8, 3), 0xffff7fffu);
}

TEST(GliderGrid, cellsCoverThePanelWithoutGapOrOverlap) {
    for (const Rect& panel : {Rect(3, 5, 1283, 691), Rect(0, 0, 101, 67), Rect(0, 0, 3, 2)}) {
        long long area = 0;
        for (int row = 0; row < glidergrid::rows; ++row) {
            for (int column = 0; column < glidergrid::columns; ++column) {
                const Rect cell = glidergrid::cell(panel, row, column);
                area += cell.getArea();
                EXPECT_EQ(cell.LowerRightCorner.X, glidergrid::cell(panel, row, column + 1).UpperLeftCorner.X);
                EXPECT_EQ(cell.LowerRightCorner.Y, glidergrid::cell(panel, row + 1, column).UpperLeftCorner.Y);
            }
        }
        EXPECT_EQ(area, panel.getArea());
        EXPECT_EQ(glidergrid::cell(panel, 0, 0, glidergrid::rows, glidergrid::columns), panel);
        EXPECT_EQ(glidergrid::headPlace(panel, 3).UpperLeftCorner.Y, glidergrid::titlePlace(panel).LowerRightCorner.Y);
    }
}

TEST(GliderGrid, theMeshStaysWithinThePanel) {
    const Rect panel(10, 20, 650, 362);
    ShapeMesh mesh;
    glidergrid::fill(mesh, panel, 0xff000000, 0xffffffff);
    const size_t once = mesh.indices.size();
    glidergrid::fill(mesh, panel, 0xff000000, 0xffffffff);
    EXPECT_EQ(mesh.indices.size(), once);
    for (const ShapeMesh::Vertex& vertex : mesh.vertices) {
        EXPECT_TRUE(vertex.place.X >= 10 && vertex.place.X <= 650) << vertex.place.X;
        EXPECT_TRUE(vertex.place.Y >= 20 && vertex.place.Y <= 362) << vertex.place.Y;
    }
}

} // namespace
} // namespace skyvane
