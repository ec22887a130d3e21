#include "chartmaker/inspect/ReliefPicture.h"

#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace skyvane {
namespace {

/// The light comes from the north west, half way up.
constexpr double LightEast = -0.5, LightUp = 0.7071067811865476, LightNorth = 0.5;
constexpr double LeastLight = 0.25;

/// Red, green, blue.
constexpr double Water[] = {120, 165, 205}, Lowland[] = {150, 185, 130}, Hills[] = {205, 190, 140},
                 Mountains[] = {200, 195, 195};

} // namespace

ReliefPicture::ReliefPicture(const View& view)
    : view_(view), pixelsPerMetre_(0.5 * view.side / view.radiusMetres),
      sine_(std::sin(view.tiltDegrees * M_PI / 180.0)), cosine_(std::cos(view.tiltDegrees * M_PI / 180.0)),
      pixels_(static_cast<size_t>(view.side) * static_cast<size_t>(view.side), Nothing),
      depths_(pixels_.size(), -std::numeric_limits<double>::infinity()) {}

ReliefPicture::Corner ReliefPicture::place(const TerrainVertex& vertex) const {
    const double east = static_cast<double>(vertex.position.X), up = static_cast<double>(vertex.position.Y),
                 north = static_cast<double>(vertex.position.Z);
    const auto& normal = vertex.normal;
    const double light = static_cast<double>(normal.X) * LightEast + static_cast<double>(normal.Y) * LightUp +
                         static_cast<double>(normal.Z) * LightNorth;
    const double middle = 0.5 * view_.side;
    return {middle + east * pixelsPerMetre_, middle - (north * sine_ + up * cosine_) * pixelsPerMetre_,
            up * sine_ - north * cosine_, up, light};
}

void ReliefPicture::draw(const TerrainMesh& mesh, const std::vector<uint16_t>& indices) {
    std::vector<Corner> corners;
    corners.reserve(mesh.vertices.size());
    for (const TerrainVertex& vertex : mesh.vertices)
        corners.push_back(place(vertex));
    for (size_t i = 0; i + 2 < indices.size(); i += 3)
        triangle(corners[indices[i]], corners[indices[i + 1]], corners[indices[i + 2]]);
}

void ReliefPicture::triangle(const Corner& a, const Corner& b, const Corner& c) {
    const double area = (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
    if (area <= 0.0)
        return;
    const auto limit = [this](double pixel) { return static_cast<int>(std::clamp(pixel, 0.0, view_.side - 1.0)); };
    const int left = limit(std::floor(std::min({a.x, b.x, c.x}))), right = limit(std::ceil(std::max({a.x, b.x, c.x})));
    const int top = limit(std::floor(std::min({a.y, b.y, c.y}))), bottom = limit(std::ceil(std::max({a.y, b.y, c.y})));
    for (int y = top; y <= bottom; ++y)
        for (int x = left; x <= right; ++x) {
            const double px = x + 0.5, py = y + 0.5;
            const double u = ((b.x - px) * (c.y - py) - (b.y - py) * (c.x - px)) / area;
            const double v = ((c.x - px) * (a.y - py) - (c.y - py) * (a.x - px)) / area;
            const double w = 1.0 - u - v;
            if (u < 0.0 || v < 0.0 || w < -1e-12)
                continue;
            const size_t pixel = static_cast<size_t>(y) * static_cast<size_t>(view_.side) + static_cast<size_t>(x);
            const double depth = u * a.depth + v * b.depth + w * c.depth;
            if (depth <= depths_[pixel])
                continue;
            depths_[pixel] = depth;
            pixels_[pixel] =
                colour(u * a.height + v * b.height + w * c.height, u * a.light + v * b.light + w * c.light);
        }
}

uint32_t ReliefPicture::colour(double height, double light) const {
    const double share =
        std::clamp((height - view_.lowestMetres) / (view_.highestMetres - view_.lowestMetres), 0.0, 1.0);
    const double upper = std::max(2.0 * share - 1.0, 0.0), lower = std::min(2.0 * share, 1.0) - upper;
    const double shade = std::clamp(light / LightUp, LeastLight, 1.3);
    uint32_t shaded = 0xff000000;
    for (int i = 0; i < 3; ++i) {
        const double plain =
            height == 0.0 ? Water[i] : Lowland[i] * (1.0 - upper - lower) + Hills[i] * lower + Mountains[i] * upper;
        shaded |= static_cast<uint32_t>(std::min(255.0, plain * shade)) << (16 - 8 * i);
    }
    return shaded;
}

int ReliefPicture::countHoles(double radiusMetres) const {
    const double middle = 0.5 * view_.side;
    int holes = 0;
    for (int y = 0; y < view_.side; ++y)
        for (int x = 0; x < view_.side; ++x)
            holes +=
                std::hypot(x + 0.5 - middle, y + 0.5 - middle) < radiusMetres * pixelsPerMetre_ &&
                pixels_[static_cast<size_t>(y) * static_cast<size_t>(view_.side) + static_cast<size_t>(x)] == Nothing;
    return holes;
}

bool ReliefPicture::save(const std::string& path) const {
    auto* bytes = reinterpret_cast<unsigned char*>(const_cast<uint32_t*>(pixels_.data()));
    cairo_surface_t* surface =
        cairo_image_surface_create_for_data(bytes, CAIRO_FORMAT_RGB24, view_.side, view_.side, 4 * view_.side);
    const bool saved = cairo_surface_write_to_png(surface, path.c_str()) == CAIRO_STATUS_SUCCESS;
    cairo_surface_destroy(surface);
    return saved;
}

} // namespace skyvane
