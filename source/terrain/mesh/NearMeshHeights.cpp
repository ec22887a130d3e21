#include "terrain/mesh/NearMeshHeights.h"

#include "terrain/mesh/NearMesh.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

bool NearMeshHeights::findTriangle(double x, double z, int& first, bool& upper) const {
    double u = x / NearMesh::RadiusMetres, v = z / NearMesh::RadiusMetres;
    if (!(std::abs(u) <= 1.0) || !(std::abs(v) <= 1.0) || side_ < 2)
        return false;
    const double drawn = std::hypot(u, v);
    if (drawn > 0.0) {
        const double scale = NearMesh::undrawInwards(drawn) / drawn;
        u *= scale;
        v *= scale;
    }
    const double column = (u + 1.0) / 2.0 * (side_ - 1), row = (v + 1.0) / 2.0 * (side_ - 1);
    const int i = std::clamp(static_cast<int>(column), 0, side_ - 2),
              j = std::clamp(static_cast<int>(row), 0, side_ - 2);
    first = j * side_ + i;
    upper = row - j > column - i;
    return true;
}

float NearMeshHeights::heightOn(const Vector& a, const Vector& b, const Vector& c, double x, double z) {
    const double bx = static_cast<double>(b.X - a.X), bz = static_cast<double>(b.Z - a.Z);
    const double cx = static_cast<double>(c.X - a.X), cz = static_cast<double>(c.Z - a.Z);
    const double px = x - static_cast<double>(a.X), pz = z - static_cast<double>(a.Z);
    const double area = bx * cz - cx * bz;
    if (area == 0.0)
        return a.Y;
    const double s = (px * cz - cx * pz) / area, t = (bx * pz - px * bz) / area;
    return a.Y + static_cast<float>(s * static_cast<double>(b.Y - a.Y) + t * static_cast<double>(c.Y - a.Y));
}

} // namespace skyvane
