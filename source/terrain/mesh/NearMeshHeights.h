#pragma once

#include "core/geometry/EngineMath.h"

namespace skyvane {

/// The height of a near mesh at any place of it, as its triangles are drawn: for what shall lie on the ground.
///
///     NearMeshHeights heights(side);
///     float height;
///     if (heights.sample(x, z, [&](int vertex) { return buffer->getPosition(vertex); }, height)) ...
class NearMeshHeights {
public:
    using Vector = irr::core::vector3d<float>;

    /// Vertices per side of the mesh.
    explicit NearMeshHeights(int sampleAmount) : side_(sampleAmount) {}

    /// Metres from the mesh's centre, east and north. False outside of the mesh.
    template <class PositionOf>
    bool sample(double x, double z, PositionOf positionOf, float& height) const {
        int first;
        bool upper;
        if (!findTriangle(x, z, first, upper))
            return false;
        const Vector sw = positionOf(first), ne = positionOf(first + side_ + 1);
        height =
            upper ? heightOn(sw, positionOf(first + side_), ne, x, z) : heightOn(sw, ne, positionOf(first + 1), x, z);
        return true;
    }

private:
    /// The south-western vertex of the quad, and which of its two triangles.
    bool findTriangle(double x, double z, int& first, bool& upper) const;
    static float heightOn(const Vector& a, const Vector& b, const Vector& c, double x, double z);

    int side_;
};

} // namespace skyvane
