#pragma once

#include "displays/drawing/Drawer2D.h"
#include "displays/drawing/TriangleBatch.h"

namespace skyvane {

/// Half of the width over which the alpha of soft edges falls to zero, in pixels.
constexpr float softEdge = 0.5f;

inline irr::video::SColor transparent(irr::video::SColor color) {
    color.setAlpha(0);
    return color;
}

/// What Drawer2D keeps between calls: the batch, the look of the next quad, and memory for polygons.
struct Drawer2D::State {
    explicit State(irr::video::IVideoDriver* driver) : batch(driver) {
        setColor(irr::video::SColor(0xffffffff));
        setTextureCoordinates(nullptr);
    }

    void setColor(irr::video::SColor color) { setColors(color, color, color, color); }
    void setColors(irr::video::SColor upperLeft, irr::video::SColor upperRight, irr::video::SColor lowerLeft,
                   irr::video::SColor lowerRight);
    void setTextureCoordinates(const Point2f* four);
    void updateMirroring();
    void addQuad(const QuadPoints& places, const QuadPoints& coordinates);
    void addArc(Point2f centre, float inner, float outer, float fromDegrees, float toDegrees, int segments);
    void addPlainQuad(const Rect2f& rect, irr::video::SColor color);
    /// Triangulates into `corners`, three points a triangle. False for a polygon that has no inside.
    bool triangulate();

    TriangleBatch batch;
    irr::video::SColor colors[4];
    QuadPoints coordinates;         ///< As set.
    QuadPoints mirroredCoordinates; ///< As drawn.
    bool mirrorHorizontal = false;
    bool mirrorVertical = false;
    std::vector<Point2f> outline;
    std::vector<Point2f> normals;
    std::vector<Point2f> corners;
};

} // namespace skyvane
