#include "PlainPage.h"

#include "displays/glide/GliderGrid.h"
#include "displays/instruments/OneSegmentPanel.h"

#include <algorithm>
#include <map>
#include <utility>

namespace skyvane {

namespace {

using Part = irr::core::rect<float>;

const irr::video::SColor white(0xffffffff);
const Part whole(0, 0, 1, 1);
/// Where a picture that holds only a part of the face lies in it.
const Part hand(0.4375f, 0.0f, 0.5625f, 1.0f);
constexpr float faceShare = 0.839344262295082f;

/// The pictures of a panel in the order of drawing, by the index of its factory.
const std::map<int, std::vector<std::pair<const char*, Part>>>& panelLayers() {
    static const Part square, top(0.1875f, 0.0625f, 0.8125f, 0.5625f), bug(0.4375f, 0.0f, 0.5625f, 0.0625f);
    static const std::map<int, std::vector<std::pair<const char*, Part>>> layers = {
        {0,
         {{"att_sky", whole},
          {"att_ladder", whole},
          {"att_bank", whole},
          {"gauge_back_back", square},
          {"gauge_back_alpha", square},
          {"att_top", top}}},
        {1,
         {{"turn_bg", whole},
          {"turn_ball", {0.45f, 0.62f, 0.55f, 0.72f}},
          {"turn_plane", whole},
          {"gauge_back_alpha", square}}},
        {4,
         {{"alt_bg", whole}, {"alt_10000", hand}, {"alt_1000", hand}, {"alt_100", hand}, {"gauge_back_alpha", square}}},
        {5, {{"comp_card", whole}, {"comp_plane", whole}, {"comp_bug", bug}, {"gauge_back_alpha", square}}},
        {7, {{"lamp_bg", square}, {"lamp", square}}},
        {8, {{"vsi_bg", whole}, {"alt_100", hand}, {"gauge_back_alpha", square}}},
        {9, {{"speed_bg", whole}, {"alt_100", hand}, {"gauge_back_back", square}, {"gauge_back_alpha", square}}},
        {12, {{"battery2Shadow", square}, {"battery2Color", square}, {"battery2Light", square}}}};
    return layers;
}

irr::core::matrix4 pixelsOf(irr::core::dimension2d<irr::u32> screen) {
    irr::core::matrix4 view;
    view.setTranslation({-0.5f * screen.Width, -0.5f * screen.Height, 0.0f});
    irr::core::matrix4 projection;
    projection.setScale({2.0f / screen.Width, -2.0f / screen.Height, 1.0f});
    return projection * view;
}

} // namespace

PlainPage::PlainPage(irr::video::IVideoDriver* driver, std::string media) : driver_(driver), media_(std::move(media)) {
    material_.Lighting = false;
    material_.BackfaceCulling = false;
    material_.ZBuffer = irr::video::ECFN_NEVER;
    material_.ZWriteEnable = false;
    material_.BlendOperation = irr::video::EBO_ADD;
    material_.MaterialType = irr::video::EMT_TRANSPARENT_ALPHA_CHANNEL;
    material_.TextureLayer[0].BilinearFilter = true;
}

irr::video::ITexture* PlainPage::load(const std::string& name) const {
    return driver_->getTexture((media_ + name + ".png").c_str());
}

/// An empty part means the whole picture over the whole square, as bezels and rings lie.
void PlainPage::addPanel(int factoryIndex, const irr::core::rect<int>& place) {
    const auto found = panelLayers().find(factoryIndex);
    if (found == panelLayers().end())
        return;
    const float edge = static_cast<float>(std::min(place.getWidth(), place.getHeight()));
    const irr::core::vector2d<int> centre = place.getCenter();
    for (const auto& [name, part] : found->second) {
        const bool square = part.getWidth() == 0.0f;
        const Part cut = square ? whole : part;
        const float size = edge * (square ? 1.0f : std::string(name) == "att_ladder" ? 0.76f * faceShare : faceShare);
        const float left = centre.X - 0.5f * size, upper = centre.Y - 0.5f * size;
        addQuad(load(name),
                {left + cut.UpperLeftCorner.X * size, upper + cut.UpperLeftCorner.Y * size,
                 left + cut.LowerRightCorner.X * size, upper + cut.LowerRightCorner.Y * size},
                white);
    }
}

void PlainPage::addField(const irr::core::rect<int>& place, FlexibleFont* font) {
    const irr::core::vector2d<int> from = place.UpperLeftCorner, to = place.LowerRightCorner;
    addQuad(
        load("onesegment"),
        {static_cast<float>(from.X), static_cast<float>(from.Y), static_cast<float>(to.X), static_cast<float>(to.Y)},
        irr::video::SColor(0xff000080));
    addText(L"Alt MSL:", OneSegmentPanel::upperHalf(place), font);
    addText(L"12345", OneSegmentPanel::lowerHalf(place), font);
}

void PlainPage::addGlider(const irr::core::rect<int>& place, FlexibleFont* font) {
    for (int row = 0; row < glidergrid::rows; ++row) {
        for (int column = 0; column < glidergrid::columns; ++column) {
            const irr::core::rect<int> cell = glidergrid::cell(place, row, column);
            const irr::core::vector2d<int> from = cell.UpperLeftCorner, to = cell.LowerRightCorner;
            addQuad(load("white"),
                    {static_cast<float>(from.X), static_cast<float>(from.Y), static_cast<float>(to.X),
                     static_cast<float>(to.Y)},
                    irr::video::SColor(glidergrid::groundColor(row, column)));
            addText(L"-12345", cell, font);
        }
    }
}

void PlainPage::addText(const wchar_t* text, const irr::core::rect<int>& box, FlexibleFont* font) {
    texts_.push_back(std::make_unique<Text>());
    texts_.back()->text.set(font, text, nullptr, box.getSize(), white);
    texts_.back()->box = box;
}

void PlainPage::addQuad(irr::video::ITexture* texture, const Part& screen, irr::video::SColor color) {
    const auto vertex = [color](const irr::core::vector2d<float>& at, const irr::core::vector2d<float>& from) {
        return irr::video::S3DVertex(at.X, at.Y, 0, 0, 0, -1, color, from.X, from.Y);
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
    for (const auto& text : texts_)
        text->text.draw(text->box);
}

} // namespace skyvane
