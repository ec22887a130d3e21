#include "chart/areas/AreaGrid.h"

#include "chart/geodesy/Angles.h"

#include <algorithm>
#include <cmath>

namespace skyvane {
namespace {

constexpr double CellsPerDegree = 2.0;
/// Degrees that an overlap has at least.
constexpr double Tolerance = 2e-8;

/// The first and last cell that a span of degrees overlaps.
int firstCell(double degrees) {
    return static_cast<int>(std::ceil((degrees + Tolerance) * CellsPerDegree)) - 1;
}
int lastCell(double degrees) {
    return static_cast<int>(std::floor((degrees - Tolerance) * CellsPerDegree));
}

} // namespace

const AreaGridNumbers areaGridNumbers;

AreaGridView::AreaGridView(const ChartPosition& nw, const ChartPosition& se) {
    const double west = se.longitude - nw.longitude >= 360.0 ? 0.0 : Angle360(nw.longitude);
    double east = se.longitude - nw.longitude >= 360.0 ? 360.0 : Angle360(se.longitude);
    const double first = Latitudinize(nw.latitude), second = Latitudinize(se.latitude);
    if (!std::isfinite(west + east + first + second))
        return;
    if (east < west)
        east += 360.0;
    firstColumn_ = firstCell(west);
    columns_ = std::min(AreaGridColumns, std::max(lastCell(east), firstColumn_) - firstColumn_ + 1);
    firstRow_ = std::clamp(firstCell(90.0 - std::max(first, second)), 0, AreaGridRows - 1);
    lastRow_ = std::clamp(lastCell(90.0 - std::min(first, second)), firstRow_, AreaGridRows - 1);
}

} // namespace skyvane
