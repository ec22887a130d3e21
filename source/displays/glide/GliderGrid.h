#pragma once

#include "core/geometry/EngineMath.h"

#include <cstdint>

namespace skyvane {

struct ShapeMesh;

/// The grid of a glider panel: rows of equal height, columns of equal width, and a colour of its own for each cell.
namespace glidergrid {

constexpr int rows = 9;
constexpr int columns = 4;
constexpr int titleRow = 4; ///< Title and heads of the table, which ends with the grid.

/// Darker to the right, greener downwards.
constexpr uint32_t groundColor(int row, int column) {
    return 0xff000000u + static_cast<uint32_t>(row * 4096 + (384 - 128 * column) / 3);
}

/// The inverse of the ground's, full of red.
constexpr uint32_t textColor(int row, int column) {
    return 0xffff0000u + (~groundColor(row, column) & 0xffffu);
}

/// A cell, or several beside and below each other, of a grid in that rectangle.
irr::core::rect<int> cell(const irr::core::rect<int>& grid, int row, int column, int rowSpan = 1, int columnSpan = 1);

/// The two halves of the table's first row: its title over all columns, and the head of a column.
irr::core::rect<int> titlePlace(const irr::core::rect<int>& grid);
irr::core::rect<int> headPlace(const irr::core::rect<int>& grid, int column);

/// All grounds, the lines between them and the wider ones round the table, in place of what the mesh holds.
void fill(ShapeMesh& mesh, const irr::core::rect<int>& grid, uint32_t lineColor, uint32_t tableColor);

} // namespace glidergrid
} // namespace skyvane
