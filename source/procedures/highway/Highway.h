#pragma once

#include "core/geometry/EngineMath.h"
#include "procedures/course/CourseElement.h"

#include <cstdint>
#include <vector>

namespace skyvane {

/// Where the rectangles of the highway in the sky stand, and how large they are.
struct HighwaySize {
    static constexpr double UncheckedMetres = 33.0; ///< Side of a rectangle where no tolerance is watched.

    double widthMetres = UncheckedMetres;
    double heightMetres = UncheckedMetres;
};

/// One rectangle to fly through.
struct HighwayGate {
    irr::core::vector3d<double> place; ///< Around the centre: x east, y up from sea level, z north, metres.
    double course = 0.0;               ///< That it faces, degrees true.
    bool transition = false;
};

struct HighwayVertex {
    irr::core::vector3d<float> position, normal;
    uint32_t color = 0; ///< ARGB
};

/// The rectangles as plain arrays, around a position: x east, y up from sea level, z north, in metres.
struct HighwayMesh {
    static constexpr int VerticesPerGate = 8, IndicesPerGate = 24;
    /// No more rectangles stand before the aircraft, and behind it.
    static constexpr int MostForward = 100, MostBackward = 50;
    static constexpr double SpacingMetres = 1000.0;

    ChartPosition centre;
    std::vector<HighwayVertex> vertices;
    std::vector<uint16_t> indices; ///< Triangles, to be drawn from both sides.
    double coveredMetres = 0.0;    ///< So far ahead the rectangles reach; infinite when they reach the end of the path.
};

/// Rectangles at whole multiples of the spacing from the start of each leg: from the aircraft's projection on the leg
/// nearest to it onwards over the following legs, and backwards on that leg.
std::vector<HighwayGate> placeGates(const std::vector<CourseElement>& path, const ChartPosition& aircraft,
                                    double altitudeMetres, double& coveredMetres);

/// Fills the mesh for a path, which may be empty. Its arrays keep their memory.
void buildHighway(const std::vector<CourseElement>& path, const ChartPosition& aircraft, double altitudeMetres,
                  const HighwaySize& size, HighwayMesh& mesh);

} // namespace skyvane
