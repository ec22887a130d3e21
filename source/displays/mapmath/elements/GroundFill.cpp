#include "displays/mapmath/elements/GroundFill.h"

#include "chart/geodesy/Angles.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace skyvane {

namespace {

constexpr double finestDegrees = 1e-6;
constexpr double pixelsOfDetail = 0.5;
constexpr int mostSteps = 20;

uint64_t fingerprintOf(const std::vector<ChartPosition>& vertices) {
    uint64_t print = vertices.size() * 0x9e3779b97f4a7c15ull;
    const size_t step = std::max<size_t>(1, vertices.size() / 8);
    for (size_t i = 0; i < vertices.size(); i += step)
        for (const double number : {vertices[i].longitude, vertices[i].latitude}) {
            uint64_t bits;
            std::memcpy(&bits, &number, sizeof bits);
            print = (print ^ bits) * 1099511628211ull;
            print ^= print >> 29;
        }
    return print;
}

ShapePath relativePath(const std::vector<ChartPosition>& vertices, double detailDegrees) {
    ShapePath path, thinned;
    path.reserve(vertices.size());
    for (const ChartPosition& vertex : vertices)
        path.emplace_back(Angle180(vertex.longitude - vertices.front().longitude),
                          vertex.latitude - vertices.front().latitude);
    thinOut(path, detailDegrees, thinned);
    return thinned;
}

} // namespace

GroundFill::GroundFill(const std::vector<ChartPosition>& vertices, double detailDegrees)
    : first_(vertices.empty() ? ChartPosition() : vertices.front()), fingerprint_(fingerprintOf(vertices)),
      sweep_(relativePath(vertices, detailDegrees)) {}

bool GroundFill::isOf(const std::vector<ChartPosition>& vertices) const {
    return fingerprint_ == fingerprintOf(vertices);
}

void GroundFill::addTo(ShapeMesh& mesh, const MapAffine& affine, uint32_t argb, const ShapeRect& view) const {
    if (!isDone() || sweep_.hasFailed())
        return;
    const ShapePoint start = affine.toPixels(first_);
    for (const PolygonSweep::Trapezoid& part : sweep_.getTrapezoids()) {
        const ShapePoint corners[] = {
            start + affine.toPixels(part.left0, part.y0), start + affine.toPixels(part.right0, part.y0),
            start + affine.toPixels(part.right1, part.y1), start + affine.toPixels(part.left1, part.y1)};
        const auto beyond = [&](const auto& coordinate, double low, double high) {
            const auto ends = std::minmax(
                {coordinate(corners[0]), coordinate(corners[1]), coordinate(corners[2]), coordinate(corners[3])});
            return ends.second < low || ends.first > high;
        };
        if (beyond([](const ShapePoint& p) { return p.X; }, view.UpperLeftCorner.X, view.LowerRightCorner.X) ||
            beyond([](const ShapePoint& p) { return p.Y; }, view.UpperLeftCorner.Y, view.LowerRightCorner.Y))
            continue;
        const auto add = [&](const ShapePoint& p) {
            return mesh.add({static_cast<float>(p.X), static_cast<float>(p.Y)}, argb);
        };
        const uint32_t a = add(corners[0]), b = add(corners[1]), c = add(corners[2]), d = add(corners[3]);
        mesh.quad(a, b, c, d);
    }
}

int groundDetailStep(double degreesPerPixel) {
    const double wanted = pixelsOfDetail * degreesPerPixel / finestDegrees;
    return wanted > 1.0 ? std::min(mostSteps, static_cast<int>(std::floor(std::log2(wanted)))) : 0;
}

double groundDetailDegrees(int step) {
    return finestDegrees * std::exp2(step);
}

} // namespace skyvane
