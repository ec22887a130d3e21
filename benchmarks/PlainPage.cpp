#include "PlainPage.h"

namespace skyvane {

namespace {

using Part = irr::core::rect<float>;

const Part whole(0, 0, 1, 1);
/// Where a picture that holds only a part of the face lies in it.
const Part hand(0.4375f, 0.0f, 0.5625f, 1.0f);
constexpr float faceShare = 0.839344262295082f;

irr::core::matrix4 pixelsOf(irr::core::dimension2d<irr::u32> screen) {
    irr::core::matrix4 view;
    view.setTranslation({-0.5f * screen.Width, -0.5f * screen.Height, 0.0f});
    irr::core::matrix4 projection;
    projection.setScale({2.0f / screen.Width, -2.0f / screen.Height, 1.0f});
    return projection * view;
}

} // namespace

PlainPage::PlainPage(irr::video::IVideoDriver* driver, const std::string& media) : driver_(driver) {
    material_.Lighting = false;
    material_.BackfaceCulling = false;
    material_.ZBuffer = irr::video::ECFN_NEVER;
    material_.ZWriteEnable = false;
    material_.BlendOperation = irr::video::EBO_ADD;
    material_.MaterialType = irr::video::EMT_TRANSPARENT_ALPHA_CHANNEL;
    material_.TextureLayer[0].BilinearFilter = true;

    const Part top(0.1875f, 0.0625f, 0.8125f, 0.5625f), bug(0.4375f, 0.0f, 0.5625f, 0.0625f);
    addDial(media, {0, 0, 358, 360},
            {{"speed_bg", whole}, {"alt_100", hand}, {"gauge_back_back", {}}, {"gauge_back_alpha", {}}});
    addDial(media, {0, 360, 358, 720},
            {{"comp_card", whole}, {"comp_plane", whole}, {"comp_bug", bug}, {"gauge_back_alpha", {}}});
    addDial(media, {358, 64, 921, 655},
            {{"att_sky", whole},
             {"att_ladder", whole},
             {"att_bank", whole},
             {"gauge_back_back", {}},
             {"gauge_back_alpha", {}},
             {"att_top", top}});
    addDial(media, {921, 0, 1280, 360},
            {{"alt_bg", whole}, {"alt_10000", hand}, {"alt_1000", hand}, {"alt_100", hand}, {"gauge_back_alpha", {}}});
    addDial(media, {921, 360, 1280, 720}, {{"vsi_bg", whole}, {"alt_100", hand}, {"gauge_back_alpha", {}}});
}

/// An empty part means the whole picture over the whole square, as bezels and rings lie.
void PlainPage::addDial(const std::string& media, const irr::core::rect<int>& place,
                        const std::vector<std::pair<std::string, Part>>& layers) {
    const float edge = static_cast<float>(std::min(place.getWidth(), place.getHeight()));
    const irr::core::vector2d<int> centre = place.getCenter();
    for (const auto& [name, part] : layers) {
        const bool square = part.getWidth() == 0.0f;
        const Part cut = square ? whole : part;
        const float size = edge * (square ? 1.0f : name == "att_ladder" ? 0.76f * faceShare : faceShare);
        const float left = centre.X - 0.5f * size, upper = centre.Y - 0.5f * size;
        addQuad(driver_->getTexture((media + name + ".png").c_str()),
                {left + cut.UpperLeftCorner.X * size, upper + cut.UpperLeftCorner.Y * size,
                 left + cut.LowerRightCorner.X * size, upper + cut.LowerRightCorner.Y * size});
    }
}

void PlainPage::addQuad(irr::video::ITexture* texture, const Part& screen) {
    const auto vertex = [](const irr::core::vector2d<float>& at, const irr::core::vector2d<float>& from) {
        return irr::video::S3DVertex(at.X, at.Y, 0, 0, 0, -1, irr::video::SColor(0xffffffff), from.X, from.Y);
    };
    const auto corner = [](const Part& r, int i) {
        return irr::core::vector2d<float>(i % 2 ? r.LowerRightCorner.X : r.UpperLeftCorner.X,
                                          i / 2 ? r.LowerRightCorner.Y : r.UpperLeftCorner.Y);
    };
    Quad quad{texture, {}};
    for (int i = 0; i < 4; ++i)
        quad.vertices[i] = vertex(corner(screen, i), corner(whole, i));
    quads_.push_back(quad);
}

void PlainPage::draw() {
    static const irr::u16 indices[] = {0, 1, 2, 1, 3, 2};
    driver_->setTransform(irr::video::ETS_PROJECTION, pixelsOf(driver_->getScreenSize()));
    driver_->setTransform(irr::video::ETS_VIEW, irr::core::IdentityMatrix);
    driver_->setTransform(irr::video::ETS_WORLD, irr::core::IdentityMatrix);
    for (const Quad& quad : quads_) {
        material_.setTexture(0, quad.texture);
        driver_->setMaterial(material_);
        driver_->drawVertexPrimitiveList(quad.vertices, 4, indices, 2, irr::video::EVT_STANDARD,
                                         irr::scene::EPT_TRIANGLES, irr::video::EIT_16BIT);
    }
}

} // namespace skyvane
