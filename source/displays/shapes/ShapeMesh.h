#pragma once

#include "core/geometry/EngineMath.h"

#include <cstdint>
#include <vector>

namespace skyvane {

/// Plain coloured triangles in pixels, y down, as Drawer2D::draw takes them. A pixel covers [x, x + 1).
///
/// Whoever draws changing shapes keeps one and clears it: its arrays keep their memory.
struct ShapeMesh {
    using Point = irr::core::vector2d<float>;

    struct Vertex {
        Point place;
        uint32_t argb;
    };

    std::vector<Vertex> vertices;
    std::vector<uint32_t> indices; ///< Three a triangle, in either order.

    void clear() {
        vertices.clear();
        indices.clear();
    }
    bool isEmpty() const { return indices.empty(); }

    /// The index of the new vertex.
    uint32_t add(Point place, uint32_t argb) {
        vertices.push_back({place, argb});
        return static_cast<uint32_t>(vertices.size() - 1);
    }
    void triangle(uint32_t a, uint32_t b, uint32_t c) {
        indices.push_back(a);
        indices.push_back(b);
        indices.push_back(c);
    }
    /// The corners in order round the quad.
    void quad(uint32_t a, uint32_t b, uint32_t c, uint32_t d) {
        triangle(a, b, c);
        triangle(a, c, d);
    }
};

/// The colour with its alpha times a share of 0 to 1.
constexpr uint32_t withAlpha(uint32_t argb, double share) {
    return (static_cast<uint32_t>((argb >> 24) * share + 0.5) << 24) | (argb & 0xffffff);
}

} // namespace skyvane
