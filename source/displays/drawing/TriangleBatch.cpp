#include "displays/drawing/TriangleBatch.h"

#include <algorithm>

namespace skyvane {

using irr::core::rect;

namespace {

/// Sharpens minified textures by half a level, so that the nearest mip map has between the drawn size and twice it:
/// dials are large pictures drawn small. Under the software renderer this looks as crisp as blending two mip maps,
/// which takes twice the time.
constexpr int lodBiasEighths = -4;

EngineRef<irr::video::ITexture> makeWhiteTexture(irr::video::IVideoDriver* driver) {
    static const char* const name = "skyvane:white";
    if (irr::video::ITexture* known = driver->findTexture(name))
        return EngineRef<irr::video::ITexture>::share(known);
    const bool mipMaps = driver->getTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS);
    driver->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, false);
    auto image = EngineRef<irr::video::IImage>::adopt(
        driver->createImage(irr::video::ECF_A8R8G8B8, irr::core::dimension2d<irr::u32>(1, 1)));
    irr::video::ITexture* texture = nullptr;
    if (image) {
        image->fill(irr::video::SColor(0xffffffff));
        texture = driver->addTexture(name, image.get());
    }
    driver->setTextureCreationFlag(irr::video::ETCF_CREATE_MIP_MAPS, mipMaps);
    return EngineRef<irr::video::ITexture>::share(texture);
}

irr::video::SMaterial makeMaterial() {
    irr::video::SMaterial material;
    material.Lighting = false;
    material.BackfaceCulling = false;
    material.ZBuffer = irr::video::ECFN_NEVER;
    material.ZWriteEnable = false;
    material.AntiAliasing = irr::video::EAAM_OFF;
    // Without a blend operation the engine loses blending after a 2-D draw of its own.
    material.BlendOperation = irr::video::EBO_ADD;
    material.MaterialType = irr::video::EMT_ONETEXTURE_BLEND;
    material.MaterialTypeParam = irr::video::pack_textureBlendFunc(
        irr::video::EBF_SRC_ALPHA, irr::video::EBF_ONE_MINUS_SRC_ALPHA, irr::video::EMFN_MODULATE_1X,
        irr::video::EAS_TEXTURE | irr::video::EAS_VERTEX_COLOR);
    irr::video::SMaterialLayer& layer = material.TextureLayer[0];
    layer.BilinearFilter = true;
    layer.TrilinearFilter = false;
    layer.LODBias = lodBiasEighths;
    layer.TextureWrapU = irr::video::ETC_CLAMP_TO_EDGE;
    layer.TextureWrapV = irr::video::ETC_CLAMP_TO_EDGE;
    // The driver makes the texture matrices that a material lacks anew at each draw.
    for (irr::u32 i = 0; i < irr::video::MATERIAL_MAX_TEXTURES; ++i)
        material.getTextureMatrix(i).makeIdentity();
    return material;
}

} // namespace

TriangleBatch::TriangleBatch(irr::video::IVideoDriver* driver)
    : driver_(driver), white_(makeWhiteTexture(driver)), material_(makeMaterial()) {
    vertices_.reserve(1024);
    indices_.reserve(6 * 1024);
}

void TriangleBatch::use(irr::video::ITexture* texture) {
    if (!texture)
        texture = white_.get();
    if (texture == texture_.get())
        return;
    flush();
    texture_ = EngineRef<irr::video::ITexture>::share(texture);
    material_.setTexture(0, texture);
}

void TriangleBatch::setMaterialType(irr::video::E_MATERIAL_TYPE type) {
    if (type == material_.MaterialType)
        return;
    flush();
    material_.MaterialType = type;
}

void TriangleBatch::setFiltering(bool bilinear, bool trilinear, int anisotropy) {
    irr::video::SMaterialLayer& layer = material_.TextureLayer[0];
    const auto level = static_cast<irr::u8>(std::max(0, std::min(anisotropy, 16)));
    if (layer.BilinearFilter == bilinear && layer.TrilinearFilter == trilinear && layer.AnisotropicFilter == level)
        return;
    flush();
    layer.BilinearFilter = bilinear;
    layer.TrilinearFilter = trilinear;
    layer.AnisotropicFilter = level;
}

void TriangleBatch::setTextureWrap(bool clampU, bool clampV) {
    const auto mode = [](bool clamp) {
        return static_cast<irr::u8>(clamp ? irr::video::ETC_CLAMP_TO_EDGE : irr::video::ETC_REPEAT);
    };
    irr::video::SMaterialLayer& layer = material_.TextureLayer[0];
    if (layer.TextureWrapU == mode(clampU) && layer.TextureWrapV == mode(clampV))
        return;
    flush();
    layer.TextureWrapU = mode(clampU);
    layer.TextureWrapV = mode(clampV);
}

unsigned TriangleBatch::room(unsigned vertices, unsigned indices) {
    if (vertices_.size() + vertices > maximumVertices || indices_.size() + indices > 6 * maximumVertices)
        draw();
    return static_cast<unsigned>(vertices_.size());
}

void TriangleBatch::vertex(Point2f position, Point2f texture, irr::video::SColor color) {
    vertices_.emplace_back(position.X, position.Y, 0.0f, 0.0f, 0.0f, -1.0f, color, texture.X, texture.Y);
}

void TriangleBatch::triangle(unsigned a, unsigned b, unsigned c) {
    indices_.push_back(static_cast<irr::u16>(a));
    indices_.push_back(static_cast<irr::u16>(b));
    indices_.push_back(static_cast<irr::u16>(c));
}

void TriangleBatch::draw() {
    if (!indices_.empty() && !hidden_) {
        setPixelTransforms(irr::core::IdentityMatrix);
        driver_->setMaterial(material_);
        driver_->drawVertexPrimitiveList(vertices_.data(), static_cast<irr::u32>(vertices_.size()), indices_.data(),
                                         static_cast<irr::u32>(indices_.size() / 3), irr::video::EVT_STANDARD,
                                         irr::scene::EPT_TRIANGLES, irr::video::EIT_16BIT);
        transformsUsed();
    }
    vertices_.clear();
    indices_.clear();
}

void TriangleBatch::flush() {
    draw();
    // Whoever removes a texture between frames shall not find it held here.
    texture_.reset();
    material_.setTexture(0, nullptr);
}

void TriangleBatch::setPixelTransforms(const irr::core::matrix4& world) {
    const rect<int>& port = driver_->getViewPort();
    irr::core::vector2d<int> origin;
    if (port == clippedViewPort_)
        origin = wantedViewPort_.UpperLeftCorner - clippedViewPort_.UpperLeftCorner;
    const float width = static_cast<float>(std::max(1, port.getWidth()));
    const float height = static_cast<float>(std::max(1, port.getHeight()));
    // The engine mirrors the x translation of a projection, so all translation goes into the view.
    irr::core::matrix4 view;
    view.setTranslation(irr::core::vector3df(origin.X - 0.5f * width, origin.Y - 0.5f * height, 0.0f));
    irr::core::matrix4 projection;
    projection.setScale(irr::core::vector3df(2.0f / width, -2.0f / height, 1.0f));
    driver_->setTransform(irr::video::ETS_PROJECTION, projection);
    driver_->setTransform(irr::video::ETS_VIEW, view);
    driver_->setTransform(irr::video::ETS_WORLD, world);
}

void TriangleBatch::transformsUsed() {
    if (autoReset_)
        resetTransforms();
}

void TriangleBatch::resetTransforms() {
    for (auto kind : {irr::video::ETS_PROJECTION, irr::video::ETS_VIEW, irr::video::ETS_WORLD})
        driver_->setTransform(kind, irr::core::IdentityMatrix);
}

rect<int> TriangleBatch::targetRect() const {
    const irr::core::dimension2d<irr::u32> size = driver_->getCurrentRenderTargetSize();
    return rect<int>(0, 0, static_cast<int>(size.Width), static_cast<int>(size.Height));
}

void TriangleBatch::setViewPort(const rect<int>& wanted) {
    flush();
    const rect<int> target = targetRect();
    rect<int> seen = wanted;
    seen.clipAgainst(target);
    hidden_ = wanted.getWidth() <= 0 || wanted.getHeight() <= 0 || seen.getWidth() <= 0 || seen.getHeight() <= 0;
    if (hidden_)
        return;
    // The driver skips a rectangle that it believes to be set, though a change of target may have undone it.
    if (driver_->getViewPort() == seen)
        driver_->setViewPort(rect<int>(0, 0, 1, 1) == seen ? target : rect<int>(0, 0, 1, 1));
    driver_->setViewPort(seen);
    wantedViewPort_ = wanted;
    clippedViewPort_ = seen;
}

void TriangleBatch::resetViewPort() {
    setViewPort(targetRect());
}

} // namespace skyvane
