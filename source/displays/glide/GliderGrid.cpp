#include "displays/glide/GliderGrid.h"

#include "displays/shapes/ShapeMesh.h"

#include <algorithm>

namespace skyvane {
namespace glidergrid {

namespace {

using Rect = irr::core::rect<int>;

void addRect(ShapeMesh& mesh, int left, int top, int right, int bottom, uint32_t color) {
    const auto corner = [&](int x, int y) { return mesh.add({static_cast<float>(x), static_cast<float>(y)}, color); };
    const uint32_t a = corner(left, top), b = corner(right, top), c = corner(right, bottom), d = corner(left, bottom);
    mesh.quad(a, b, c, d);
}

int lineWidth(const Rect& grid) {
    return std::max(1, std::min(grid.getWidth(), grid.getHeight()) / 400);
}

/// Inwards.
void addFrame(ShapeMesh& mesh, const Rect& rect, int width, uint32_t color) {
    const irr::core::vector2d<int> from = rect.UpperLeftCorner, to = rect.LowerRightCorner;
    addRect(mesh, from.X, from.Y, to.X, from.Y + width, color);
    addRect(mesh, from.X, to.Y - width, to.X, to.Y, color);
    addRect(mesh, from.X, from.Y + width, from.X + width, to.Y - width, color);
    addRect(mesh, to.X - width, from.Y + width, to.X, to.Y - width, color);
}

} // namespace

Rect cell(const Rect& grid, int row, int column, int rowSpan, int columnSpan) {
    const irr::core::vector2d<int> from = grid.UpperLeftCorner;
    const auto x = [&](int at) { return from.X + grid.getWidth() * at / columns; };
    const auto y = [&](int at) { return from.Y + grid.getHeight() * at / rows; };
    return {x(column), y(row), x(column + columnSpan), y(row + rowSpan)};
}

Rect titlePlace(const Rect& grid) {
    Rect place = cell(grid, titleRow, 0, 1, columns);
    place.LowerRightCorner.Y = place.getCenter().Y;
    place.UpperLeftCorner.Y = std::min(place.UpperLeftCorner.Y + 2 * lineWidth(grid), place.LowerRightCorner.Y);
    return place;
}

Rect headPlace(const Rect& grid, int column) {
    Rect place = cell(grid, titleRow, column);
    place.UpperLeftCorner.Y = titlePlace(grid).LowerRightCorner.Y;
    return place;
}

void fill(ShapeMesh& mesh, const Rect& grid, uint32_t lineColor, uint32_t tableColor) {
    const int line = lineWidth(grid);
    mesh.clear();
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const Rect place = cell(grid, row, column);
            addRect(mesh, place.UpperLeftCorner.X, place.UpperLeftCorner.Y, place.LowerRightCorner.X,
                    place.LowerRightCorner.Y, groundColor(row, column));
        }
    }
    for (int row = 1; row < rows; ++row) {
        const int y = cell(grid, row, 0).UpperLeftCorner.Y;
        addRect(mesh, grid.UpperLeftCorner.X, y, grid.LowerRightCorner.X, y + line, lineColor);
    }
    const Rect title = titlePlace(grid);
    for (int column = 1; column < columns; ++column) {
        const int x = cell(grid, 0, column).UpperLeftCorner.X;
        if (column == columns / 2) // a label and its value share a field
            addRect(mesh, x, grid.UpperLeftCorner.Y, x + line, cell(grid, titleRow, 0).UpperLeftCorner.Y, lineColor);
        addRect(mesh, x, title.LowerRightCorner.Y, x + line, grid.LowerRightCorner.Y, lineColor);
    }
    addFrame(mesh, cell(grid, titleRow, 0, rows - titleRow, columns), 2 * line, tableColor);
}

} // namespace glidergrid
} // namespace skyvane
