#pragma once

#include "core/geometry/EngineMath.h"
#include "procedures/course/CourseElement.h"

#include <cstdint>
#include <vector>

namespace skyvane {

/// Where the rectangles of the highway in the sky stand, and how large they are.
struct HighwaySize {
    static constexpr double UncheckedMetres = 33.0; ///< Side of a rectangle where no tolerance is watched.
    static constexpr double StandardSpacingMetres = 1000.0;

    double widthMetres = UncheckedMetres;
    double heightMetres = UncheckedMetres;
    double spacingMetres = StandardSpacingMetres; ///< From one to the next along a leg.

    bool operator==(const HighwaySize& other) const {
        return widthMetres == other.widthMetres && heightMetres == other.heightMetres &&
               spacingMetres == other.spacingMetres;
    }
};

/// One rectangle to fly through.
struct HighwayGate {
    irr::core::vector3d<double> place; ///< Around the centre: x east, y up from sea level, z north, metres.
    double course = 0.0;               ///< That it faces, degrees true.
    bool transition = false;
};

/// The form of one rectangle, one unit wide, high and deep around its middle: x right, y up, z onwards.
struct GateShape {
    struct Corner {
        irr::core::vector3d<float> position, normal;
    };
    static constexpr double DepthMetres = 66.0;
    static constexpr size_t MostCorners = 400; ///< So that all rectangles fit 16-bit indices.

    std::vector<Corner> corners;
    std::vector<uint16_t> indices; ///< Triangles.

    /// Four bars without depth.
    static GateShape flatFrame();
};

struct HighwayVertex {
    irr::core::vector3d<float> position, normal;
    uint32_t color = 0; ///< ARGB
};

/// The rectangles as plain arrays, each of the shape's corners, around a position: x east, y up from sea level, z
/// north, in metres.
struct HighwayMesh {
    static constexpr int VerticesPerGate = 8; ///< Of the flat frame.
    /// No more rectangles stand before the aircraft, and behind it.
    static constexpr int MostForward = 100, MostBackward = 50;

    ChartPosition centre;
    std::vector<HighwayVertex> vertices;
    std::vector<uint16_t> indices; ///< Triangles, to be drawn from both sides.
    double coveredMetres = 0.0;    ///< So far ahead the rectangles reach; infinite when they reach the end of the path.
};

/// Rectangles at whole multiples of the spacing from the start of each leg: from the aircraft's projection on the leg
/// nearest to it onwards over the following legs, and backwards on that leg.
std::vector<HighwayGate> placeGates(const std::vector<CourseElement>& path, const ChartPosition& aircraft,
                                    double altitudeMetres, double spacingMetres, double& coveredMetres);

/// Fills the mesh for a path, which may be empty. Its arrays keep their memory. Faces that look aside are darker.
void buildHighway(const std::vector<CourseElement>& path, const ChartPosition& aircraft, double altitudeMetres,
                  const HighwaySize& size, const GateShape& shape, HighwayMesh& mesh);

} // namespace skyvane
