#pragma once

#include "core/geometry/EngineMath.h"

#include <cstdint>
#include <vector>

namespace skyvane {

/// Plain coloured triangles of a scene, in metres of its frame: x east, y up from sea level, z north.
///
/// At most 65535 vertices: what would be more is left out. Whoever fills it anew clears it: its arrays keep their
/// memory.
class SceneShapes {
public:
    using Place = irr::core::vector3d<double>;

    struct Vertex {
        irr::core::vector3d<float> place;
        uint32_t argb;
    };
    std::vector<Vertex> vertices;
    std::vector<uint16_t> indices;

    void clear() {
        vertices.clear();
        indices.clear();
    }
    /// Corners in order round it.
    void addQuad(const Place& a, const Place& b, const Place& c, const Place& d, uint32_t argb);

    /// A strip between two ends, cut into pieces of about `pieceMetres` that each lie on the ground: `heightOf` gives
    /// that, in metres, for a place; the strip lies `lift` above it.
    template <class HeightOf>
    void addStrip(const Place& from, const Place& to, double width, double lift, double pieceMetres, uint32_t argb,
                  HeightOf heightOf);
    /// A pyramid with three sides from a base, whose corners lie `radius` around it, to a tip.
    void addSpire(const Place& base, double tipHeight, double radius, uint32_t argb);
    /// An octahedron.
    void addDiamond(const Place& centre, double radius, double height, uint32_t argb);

private:
    bool hasRoom(size_t more) const { return vertices.size() + more <= 65535; }
    uint16_t add(const Place& place, uint32_t argb);
    void addTriangle(uint16_t a, uint16_t b, uint16_t c);
    static int piecesOf(double length, double pieceMetres);
    static uint32_t shaded(uint32_t argb, double light);
};

template <class HeightOf>
void SceneShapes::addStrip(const Place& from, const Place& to, double width, double lift, double pieceMetres,
                           uint32_t argb, HeightOf heightOf) {
    const Place along(to.X - from.X, 0.0, to.Z - from.Z);
    const double length = along.getLength();
    const int rows = piecesOf(length, pieceMetres), columns = piecesOf(width, pieceMetres);
    const size_t corners = static_cast<size_t>(rows + 1) * static_cast<size_t>(columns + 1);
    if (rows == 0 || columns == 0 || !hasRoom(corners))
        return;
    const Place aside = Place(along.Z, 0.0, -along.X) * (width / length);
    for (int row = 0; row <= rows; ++row)
        for (int column = 0; column <= columns; ++column) {
            Place place = from + along * (static_cast<double>(row) / rows) +
                          aside * (static_cast<double>(column) / columns - 0.5);
            place.Y = heightOf(place) + lift;
            const uint16_t corner = add(place, argb);
            if (row == 0 || column == 0)
                continue;
            const auto below = static_cast<uint16_t>(corner - columns - 1);
            addTriangle(static_cast<uint16_t>(below - 1), static_cast<uint16_t>(corner - 1), corner);
            addTriangle(static_cast<uint16_t>(below - 1), corner, below);
        }
}

} // namespace skyvane
