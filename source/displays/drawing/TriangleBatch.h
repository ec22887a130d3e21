#pragma once

#include "core/engine/EngineRef.h"
#include "displays/drawing/ShapeGeometry.h"

#include <irrlicht.h>
#include <vector>

namespace skyvane {

/// Gathers triangles of one texture and state and draws them with one call of the engine.
///
///     batch.use(texture);
///     const auto first = batch.room(4, 6);   // may flush
///     batch.vertex(...); ... batch.triangle(first, first + 1, first + 2);
///     batch.flush();
///
/// The arrays keep their memory, so that nothing is allocated once they have grown. Positions are pixels of the
/// rectangle given to setViewPort(), also where that hangs over the edge of the target. Main thread only.
class TriangleBatch {
public:
    explicit TriangleBatch(irr::video::IVideoDriver* driver);

    /// How the following triangles look; a change draws what has been gathered. Null is plain white.
    void use(irr::video::ITexture* texture);
    void setMaterialType(irr::video::E_MATERIAL_TYPE type);
    void setFiltering(bool bilinear, bool trilinear, int anisotropy);
    void setTextureWrap(bool clampU, bool clampV);
    const irr::video::SMaterial& material() const { return material_; }

    /// Makes room, drawing first where the arrays are full, and gives the index of the next vertex. At most
    /// maximumVertices vertices and six times as many indices at once.
    unsigned room(unsigned vertices, unsigned indices);
    void vertex(Point2f position, Point2f texture, irr::video::SColor color);
    void triangle(unsigned a, unsigned b, unsigned c);

    void flush();
    /// With auto reset, each flush leaves identity transforms.
    void setAutoResetTransformEnabled(bool enabled) { autoReset_ = enabled; }
    /// Sets the driver's transforms to pixels of the current viewport, times `world`.
    void setPixelTransforms(const irr::core::matrix4& world);
    void resetTransforms();
    void transformsUsed();

    void setViewPort(const irr::core::rect<int>& rect);
    void resetViewPort();
    /// False when the viewport lies wholly outside the target, so that nothing can be seen.
    bool isVisible() const { return !hidden_; }

    irr::video::ITexture* white() const { return white_.get(); }

    static constexpr unsigned maximumVertices = 16384;

private:
    void draw();
    irr::core::rect<int> targetRect() const;

    irr::video::IVideoDriver* driver_;
    EngineRef<irr::video::ITexture> white_;
    EngineRef<irr::video::ITexture> texture_; ///< Held while triangles wait for it.
    irr::video::SMaterial material_;
    std::vector<irr::video::S3DVertex> vertices_;
    std::vector<irr::u16> indices_;
    irr::core::rect<int> wantedViewPort_;
    irr::core::rect<int> clippedViewPort_;
    bool hidden_ = false;
    bool autoReset_ = true;
};

} // namespace skyvane
