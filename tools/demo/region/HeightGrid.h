#pragma once

#include "demo/region/Spot.h"

#include <vector>

namespace skyvane::demo {

/// A square grid of numbers over the region's plane; node (i, j) stands at (i, j) times the spacing.
class HeightGrid {
public:
    static constexpr double Spacing = 250.0;

    HeightGrid();

    int columns() const { return columns_; }
    int rows() const { return rows_; }
    int size() const { return columns_ * rows_; }
    int index(int i, int j) const { return j * columns_ + i; }
    Spot spot(int index) const { return {(index % columns_) * Spacing, (index / columns_) * Spacing}; }
    /// The node nearest to a place; places outside go to the edge.
    int nearest(Spot spot) const;
    bool isEdge(int index) const;

    double& operator[](int index) { return values_[static_cast<size_t>(index)]; }
    double operator[](int index) const { return values_[static_cast<size_t>(index)]; }
    /// Between the four nodes around; outside as at the edge.
    double linear(Spot spot) const;
    /// A smooth surface (cubic B-spline) near the nodes' values.
    double smooth(Spot spot) const;

    /// Calls visit(neighbour, distance in metres) for the up to eight neighbours of a node.
    template <class Visit>
    void forNeighbours(int index, Visit visit) const;

private:
    int columns_;
    int rows_;
    std::vector<double> values_;
};

template <class Visit>
void HeightGrid::forNeighbours(int index, Visit visit) const {
    constexpr double diagonal = 1.4142135623730951 * Spacing;
    const int i = index % columns_;
    const int j = index / columns_;
    for (int dj = -1; dj <= 1; ++dj) {
        for (int di = -1; di <= 1; ++di) {
            if ((di == 0 && dj == 0) || i + di < 0 || j + dj < 0 || i + di >= columns_ || j + dj >= rows_)
                continue;
            visit(index + dj * columns_ + di, di != 0 && dj != 0 ? diagonal : Spacing);
        }
    }
}

} // namespace skyvane::demo
