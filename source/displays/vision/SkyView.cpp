#include "displays/vision/SkyView.h"

#include "core/Context.h"
#include "displays/materials/MaterialManager.h"
#include "displays/vision/SceneStage.h"

#include <cmath>

namespace skyvane {
namespace {

using irr::scene::SMeshBuffer;

constexpr int segments = 48;
constexpr int rings = 6;
constexpr float radius = 280000.0f;
constexpr float sideDegrees = 45.0f; // as far as the picture of the horizon reaches, up and down
constexpr float radiansPerDegree = 0.017453293f;
const irr::video::SColor skyColor(0xff4f8fd0), groundColor(0xff5b4630);

irr::core::vector3df direction(float elevationDegrees, int segment) {
    const float elevation = elevationDegrees * radiansPerDegree;
    const float bearing = 360.0f * radiansPerDegree * static_cast<float>(segment) / segments;
    return {std::cos(elevation) * std::sin(bearing), std::sin(elevation), std::cos(elevation) * std::cos(bearing)};
}

void addVertex(SMeshBuffer& mesh, const irr::core::vector3df& where, float u, float v) {
    mesh.Vertices.push_back(irr::video::S3DVertex(where * radius, -where, 0xffffffff, irr::core::vector2df(u, v)));
}

void addQuad(SMeshBuffer& mesh, int a, int b, int c, int d) {
    for (const int index : {a, b, c, a, c, d})
        mesh.Indices.push_back(static_cast<irr::u16>(index));
}

EngineRef<SMeshBuffer> finish(EngineRef<SMeshBuffer> mesh) {
    mesh->recalculateBoundingBox();
    return mesh;
}

/// From the horizon to 45 degrees above or below it; the picture's middle is the horizon, and half a pixel of it is
/// kept away from the other half.
EngineRef<SMeshBuffer> makeSide(float sign) {
    constexpr float halfPixel = 0.5f / 512.0f;
    auto mesh = EngineRef<SMeshBuffer>::adopt(new SMeshBuffer);
    for (int ring = 0; ring <= rings; ++ring)
        for (int segment = 0; segment <= segments; ++segment) {
            const float share = static_cast<float>(ring) / rings;
            addVertex(*mesh, direction(sign * share * sideDegrees, segment), static_cast<float>(segment) / segments,
                      0.5f - sign * (halfPixel + share * (0.5f - 2.0f * halfPixel)));
        }
    constexpr int row = segments + 1;
    for (int ring = 0; ring < rings; ++ring)
        for (int segment = 0; segment < segments; ++segment) {
            const int first = ring * row + segment;
            addQuad(*mesh, first, first + row, first + row + 1, first + 1);
        }
    return finish(mesh);
}

/// From 45 degrees to zenith or nadir, as a round picture.
EngineRef<SMeshBuffer> makeCap(float sign) {
    auto mesh = EngineRef<SMeshBuffer>::adopt(new SMeshBuffer);
    for (int ring = 0; ring <= rings; ++ring)
        for (int segment = 0; segment <= segments; ++segment) {
            const float share = static_cast<float>(ring) / rings;
            const irr::core::vector3df where = direction(sign * (sideDegrees + share * (90.0f - sideDegrees)), segment);
            const float bearing = 360.0f * radiansPerDegree * static_cast<float>(segment) / segments;
            const float reach = 0.49f * (1.0f - share);
            addVertex(*mesh, where, 0.5f + reach * std::sin(bearing), 0.5f - reach * std::cos(bearing));
        }
    constexpr int row = segments + 1;
    for (int ring = 0; ring < rings; ++ring)
        for (int segment = 0; segment < segments; ++segment) {
            const int first = ring * row + segment;
            addQuad(*mesh, first, first + row, first + row + 1, first + 1);
        }
    return finish(mesh);
}

} // namespace

SkyView::SkyView(Context* context)
    : front_(loadPanelImage(context, "media/sky_front.png")), top_(loadPanelImage(context, "media/sky_top.png")),
      bottom_(loadPanelImage(context, "media/sky_bottom.png")) {
    irr::video::IVideoDriver* driver = context->getIrrlichtDevice()->getVideoDriver();
    const irr::video::E_MATERIAL_TYPE solid = context->getMaterialManager()->getMaterialType("Solid");
    const auto fill = [&](Part part, EngineRef<SMeshBuffer> mesh, const PanelTexture& picture,
                          irr::video::SColor color) {
        Piece& piece = pieces_[part];
        piece.mesh = std::move(mesh);
        piece.plain = makeSceneMaterial(driver, solid);
        piece.plain.DiffuseColor = color;
        piece.plain.ZWriteEnable = false;
        piece.pictured = piece.plain;
        if (picture) {
            piece.pictured.setTexture(0, picture.get());
            piece.pictured.DiffuseColor = irr::video::SColor(0xffffffff);
        }
    };
    fill(Above, makeCap(1.0f), top_, skyColor);
    fill(Side, makeSide(1.0f), front_, skyColor);
    fill(LowSide, makeSide(-1.0f), front_, groundColor);
    fill(Below, makeCap(-1.0f), bottom_, groundColor);
}

void SkyView::draw(SceneStage& stage, bool textured) {
    stage.setPlace(stage.getPose().position);
    for (const Piece& piece : pieces_)
        stage.draw(piece.mesh.get(), textured ? piece.pictured : piece.plain);
}

} // namespace skyvane
