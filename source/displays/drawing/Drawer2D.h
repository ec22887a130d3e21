#pragma once

#include <irrlicht.h>
#include <memory>
#include <vector>

namespace skyvane {

struct ShapeMesh;

/// The one 2-D drawing service of the displays: textured quads, lines, arcs, polygons and ready meshes, in pixels of
/// the driver's current viewport, y down.
///
/// Quads of the same texture and state are gathered and drawn in one call; anything else that draws (text, meshes, the
/// engine itself) must be preceded by flush(), which the drawing calls of this class and of the fonts do themselves.
/// Changing the viewport through setViewPort() flushes too. Colour, texture coordinates and mirroring stay set until
/// changed: whoever sets them restores white, the full texture, no mirroring. Main thread only.
class Drawer2D {
public:
    using Position = irr::core::vector2d<int>;
    using PointF = irr::core::vector2d<float>;

    explicit Drawer2D(irr::IrrlichtDevice* device);
    ~Drawer2D();
    Drawer2D(const Drawer2D&) = delete;
    Drawer2D& operator=(const Drawer2D&) = delete;

    /// A textured quad. `pivot` as fractions of `size`; `position` is where the pivot lands. Positive rotation turns
    /// counter-clockwise on screen. Nothing for a null texture or a width or height below 1.
    void Draw(irr::video::ITexture* texture, Position position, irr::core::dimension2d<int> size, float rotationDegrees,
              PointF pivot);
    /// The texture stretched over `destination`, cut at `clip` when there is one.
    void Draw(irr::video::ITexture* texture, const irr::core::rect<int>& destination,
              const irr::core::rect<int>* clip = nullptr);
    /// `pivotY` 0.5 centres the width on the line. Nothing for an empty line.
    void DrawLine(irr::video::ITexture* texture, Position from, Position to, int width, float pivotY = 0.5f);
    /// Angles in degrees, 0 up, clockwise: the direction (-cos(a + 90), -sin(a + 90)). `pivotY` says where the radius
    /// lies across the width: 0 outer edge, 1 inner edge. Both edges are soft over one pixel.
    void DrawArc(irr::video::ITexture* texture, Position centre, float radius, float fromDegrees, float toDegrees,
                 float stepDegrees, int width, float pivotY = 0.0f);
    void DrawPolygon(irr::video::ITexture* texture, const std::vector<Position>& points, int width);
    void DrawFilledPolygon(const std::vector<Position>& points);
    /// Coloured triangles, whatever colour is set, moved by that many pixels.
    void draw(const ShapeMesh& shapes, PointF translation = PointF(0, 0));

    // Reusable meshes.
    void fillPolygonMeshBuffer(irr::scene::SMeshBuffer* mesh, const std::vector<PointF>& points,
                               irr::video::SColor color);
    /// A rectangle whose corners are rounded with the given radius.
    void fillRectWithCornerMeshBuffer(irr::scene::SMeshBuffer* mesh, const irr::core::rect<int>& rect, int radius,
                                      irr::video::SColor color);
    void draw2DMeshBuffer(const irr::scene::IMeshBuffer* mesh, PointF translation = PointF(0, 0),
                          float rotationDegrees = 0.0f, PointF scale = PointF(1, 1));
    void drawRectWithCorner(const irr::core::rect<int>& rect, int radius, irr::video::SColor color);
    /// A plain filled rectangle and a plain outline, `width` pixels inwards.
    void drawFilledRect(const irr::core::rect<int>& rect, irr::video::SColor color);
    void drawOutline(const irr::core::rect<int>& rect, irr::video::SColor color, int width = 1);

    void setColor(irr::video::SColor color);
    /// One per corner: upper left, upper right, lower left, lower right.
    void setColors(const irr::video::SColor* four);
    /// Four texture coordinates in the same order; null restores the full texture.
    void setTextureCoordinates(const PointF* four);
    void setMirroring(bool horizontal, bool vertical);
    void setFiltering(bool bilinear, bool trilinear, int anisotropy);
    void setTextureWrap(bool clampU, bool clampV);
    void setMaterialType(irr::video::E_MATERIAL_TYPE type);
    void setAutoResetTransformEnabled(bool enabled);
    void reset2DTransforms();

    /// Draws what has been gathered.
    void flush();
    /// Flushes, then sets the driver's viewport; positions are local to it from then on.
    void setViewPort(const irr::core::rect<int>& rect);
    void resetViewPort();
    irr::IrrlichtDevice* getDevice() const { return device_; }

private:
    struct State;
    irr::IrrlichtDevice* device_;
    std::unique_ptr<State> state_;
};

/// A value between 0 and 1 with a period of 900 ms: the shared time base of warnings.
float blink();

} // namespace skyvane
