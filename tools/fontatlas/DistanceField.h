#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace skyvane {

/// A picture of one byte a pixel, rows from the top.
struct GrayImage {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> pixels;

    uint8_t& at(int x, int y) { return pixels[static_cast<size_t>(y) * width + x]; }
    uint8_t at(int x, int y) const { return pixels[static_cast<size_t>(y) * width + x]; }
};

/// The signed distance field of a shape that is drawn `oversampling` times too large (non-zero inside).
///
/// The result has one pixel for each square of oversampling x oversampling pixels, whose sides must divide the shape's.
/// A value is the distance from the pixel's middle to the nearest edge: 0 at `spread` pixels outside and beyond, 127.5
/// on the edge, 255 at `spread` pixels inside. Exact to half a pixel of the large shape.
GrayImage makeDistanceField(const GrayImage& shape, int oversampling, int spread);

} // namespace skyvane
