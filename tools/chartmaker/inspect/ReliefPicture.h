#pragma once

#include "terrain/mesh/TerrainMesh.h"

#include <cstdint>
#include <string>
#include <vector>

namespace skyvane {

/// Draws meshes of the ground by shaded relief, lit from the north west and seen from any height above the horizon,
/// without perspective. What is nearer to the eye hides what is behind. Where no mesh is, a colour stays that no ground
/// has, so that a crack leaps to the eye.
class ReliefPicture {
public:
    struct View {
        int side = 1000;               ///< Pixels, of a square.
        double radiusMetres = 30000.0; ///< From the middle of the picture to its edge.
        double tiltDegrees = 90.0;     ///< 90 looks straight down, less to the north.
        double lowestMetres = 0.0;     ///< The colours go from here
        double highestMetres = 1.0;    ///< to here.
    };
    static constexpr uint32_t Nothing = 0xffff00ff;

    explicit ReliefPicture(const View& view);

    /// The mesh's middle is the picture's. Triangles that don't face the eye are left out.
    void draw(const TerrainMesh& mesh, const std::vector<uint16_t>& indices);
    /// Pixels within so many metres of the middle that show no ground.
    int countHoles(double radiusMetres) const;
    /// A PNG file. False when it can't be written.
    bool save(const std::string& path) const;

private:
    struct Corner {
        double x, y;  ///< Pixels, down.
        double depth; ///< Larger is nearer to the eye.
        double height;
        double light;
    };
    Corner place(const TerrainVertex& vertex) const;
    void triangle(const Corner& a, const Corner& b, const Corner& c);
    uint32_t colour(double height, double light) const;

    View view_;
    double pixelsPerMetre_;
    double sine_, cosine_; ///< Of the tilt.
    std::vector<uint32_t> pixels_;
    std::vector<double> depths_;
};

} // namespace skyvane
