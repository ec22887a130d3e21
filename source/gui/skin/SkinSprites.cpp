#include "gui/skin/SkinSprites.h"

#include "displays/drawing/Drawer2D.h"

namespace skyvane {

using irr::core::position2di;
using irr::core::rect;
using irr::video::ITexture;
using irr::video::SColor;

SkinSprites::SkinSprites(Drawer2D* drawer, const Images& images, int buttonSize)
    : drawer_(drawer), tick_(EngineRef<ITexture>::share(images.tick)),
      arrowUp_(EngineRef<ITexture>::share(images.arrowUp)), cross_(EngineRef<ITexture>::share(images.cross)),
      buttonSize_(buttonSize) {}

void SkinSprites::draw2DSprite(irr::u32 index, const position2di& position, const rect<irr::s32>* clip,
                               const SColor& color, irr::u32, irr::u32, bool, bool) {
    ITexture* image = nullptr;
    float degrees = 0.0f;
    switch (index) {
    case irr::gui::EGDI_CHECK_BOX_CHECKED:
        image = tick_.get();
        break;
    case irr::gui::EGDI_WINDOW_CLOSE:
        image = cross_.get();
        break;
    case irr::gui::EGDI_CURSOR_RIGHT:
        degrees = -90.0f;
        image = arrowUp_.get();
        break;
    case irr::gui::EGDI_CURSOR_DOWN:
        degrees = 180.0f;
        image = arrowUp_.get();
        break;
    case irr::gui::EGDI_CURSOR_LEFT:
        degrees = 90.0f;
        image = arrowUp_.get();
        break;
    case irr::gui::EGDI_CURSOR_UP:
        image = arrowUp_.get();
        break;
    default:
        return;
    }
    if (clip && !clip->isPointInside(position))
        return;
    const int size = buttonSize_ * 3 / 4;
    drawer_->setColor(color);
    drawer_->Draw(image, position, {size, size}, degrees, {0.5f, 0.5f});
    drawer_->setColor(SColor(0xffffffff));
    drawer_->flush();
}

void SkinSprites::draw2DSpriteBatch(const irr::core::array<irr::u32>& indices,
                                    const irr::core::array<position2di>& positions, const rect<irr::s32>* clip,
                                    const SColor& color, irr::u32 startTime, irr::u32 currentTime, bool loop,
                                    bool center) {
    for (irr::u32 i = 0; i < indices.size() && i < positions.size(); ++i)
        draw2DSprite(indices[i], positions[i], clip, color, startTime, currentTime, loop, center);
}

} // namespace skyvane
