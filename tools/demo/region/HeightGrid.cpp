#include "demo/region/HeightGrid.h"

#include <algorithm>

namespace skyvane::demo {

HeightGrid::HeightGrid()
    : columns_(static_cast<int>(RegionPlane::Width / Spacing) + 2),
      rows_(static_cast<int>(RegionPlane::Height / Spacing) + 2), values_(static_cast<size_t>(columns_ * rows_), 0.0) {}

int HeightGrid::nearest(Spot spot) const {
    const int i = static_cast<int>(std::lround(std::clamp(spot.x / Spacing, 0.0, columns_ - 1.0)));
    const int j = static_cast<int>(std::lround(std::clamp(spot.y / Spacing, 0.0, rows_ - 1.0)));
    return index(i, j);
}

bool HeightGrid::isEdge(int index) const {
    const int i = index % columns_;
    const int j = index / columns_;
    return i == 0 || j == 0 || i == columns_ - 1 || j == rows_ - 1;
}

double HeightGrid::linear(Spot spot) const {
    const double x = std::clamp(spot.x / Spacing, 0.0, columns_ - 1.001);
    const double y = std::clamp(spot.y / Spacing, 0.0, rows_ - 1.001);
    const int i = static_cast<int>(x);
    const int j = static_cast<int>(y);
    const int corner = index(i, j);
    const double u = x - i;
    const double south = (*this)[corner] * (1.0 - u) + (*this)[corner + 1] * u;
    const double north = (*this)[corner + columns_] * (1.0 - u) + (*this)[corner + columns_ + 1] * u;
    return south + (north - south) * (y - j);
}

double HeightGrid::smooth(Spot spot) const {
    const double x = std::clamp(spot.x / Spacing, 1.0, columns_ - 2.001);
    const double y = std::clamp(spot.y / Spacing, 1.0, rows_ - 2.001);
    const auto weights = [](double t, double* out) {
        const double s = 1.0 - t;
        out[0] = s * s * s / 6.0;
        out[1] = (3.0 * t * t * t - 6.0 * t * t + 4.0) / 6.0;
        out[3] = t * t * t / 6.0;
        out[2] = 1.0 - out[0] - out[1] - out[3];
    };
    const int i = static_cast<int>(x);
    const int j = static_cast<int>(y);
    double across[4];
    double along[4];
    weights(x - i, across);
    weights(y - j, along);
    double sum = 0.0;
    for (int row = 0; row < 4; ++row) {
        const int first = index(std::max(i - 1, 0), std::clamp(j - 1 + row, 0, rows_ - 1));
        double line = 0.0;
        for (int column = 0; column < 4; ++column)
            line += across[column] * (*this)[std::min(first + column, size() - 1)];
        sum += along[row] * line;
    }
    return sum;
}

} // namespace skyvane::demo
