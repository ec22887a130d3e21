#include "chart/geodesy/Geoid.h"

#include "chart/geodesy/Angles.h"
#include "core/bytes/ByteReader.h"

#include <algorithm>
#include <cmath>

/// undulations.bin, computed from the public coefficients of EGM84: 16-bit unsigned, little-endian. Row 0 lies at 90
/// degrees north, column 0 at longitude 0, half a degree between neighbours; the last column repeats the first.
extern "C" const char undulations[];

namespace skyvane {
namespace {

constexpr int Rows = 361;
constexpr int Columns = 721;
constexpr double StepDegrees = 0.5;
constexpr double EntriesPerMetre = 64.0;
constexpr double OffsetMetres = 500.0;

/// At a point of the grid; what lies off the table takes its nearest edge.
double undulationAt(double longitude, double latitude) {
    const int row = std::clamp(static_cast<int>(std::lround((90.0 - latitude) / StepDegrees)), 0, Rows - 1);
    const int column = std::clamp(static_cast<int>(std::lround(longitude / StepDegrees)), 0, Columns - 1);
    ByteReader entry(undulations + 2 * (row * Columns + column), 2);
    return entry.little<uint16_t>() / EntriesPerMetre - OffsetMetres;
}

double blend(double a, double b, double shareOfB) {
    return (1.0 - shareOfB) * a + shareOfB * b;
}

} // namespace

double getInterpolatedUndulation(double longitude, double latitude) {
    const double lon = Angle0to360(longitude);
    const double lat = Latitudinize(latitude);
    if (!std::isfinite(lon) || !std::isfinite(lat))
        return std::nan("");
    const double west = std::floor(lon / StepDegrees) * StepDegrees;
    const double south = std::floor(lat / StepDegrees) * StepDegrees;
    const double east = west + StepDegrees;
    const double north = south + StepDegrees;
    const double fx = (lon - west) / StepDegrees;
    const double fy = (lat - south) / StepDegrees;
    return blend(blend(undulationAt(west, south), undulationAt(east, south), fx),
                 blend(undulationAt(west, north), undulationAt(east, north), fx), fy);
}

double calcMSLFromWGS84Ellipsoid(double height, double longitude, double latitude) {
    return height - getInterpolatedUndulation(longitude, latitude);
}

double calcWGS84EllipsoidFromMSL(double height, double longitude, double latitude) {
    return height + getInterpolatedUndulation(longitude, latitude);
}

} // namespace skyvane
