#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>

namespace skyvane {

class Drawer2D;

/// The signs on the engine's small buttons (arrows, close, tick) in a size for fingers: a sprite's index is the icon's
/// number in EGUI_DEFAULT_ICON. Icons that the program doesn't use draw nothing. Sprites can't be added.
class SkinSprites : public irr::gui::IGUISpriteBank {
public:
    struct Images {
        irr::video::ITexture* tick;
        irr::video::ITexture* arrowUp;
        irr::video::ITexture* cross;
    };
    /// `buttonSize`: pixels of the buttons that carry the signs. The drawer outlives the bank.
    SkinSprites(Drawer2D* drawer, const Images& images, int buttonSize);

    irr::core::array<irr::core::rect<irr::s32>>& getPositions() override { return positions_; }
    irr::core::array<irr::gui::SGUISprite>& getSprites() override { return sprites_; }
    irr::u32 getTextureCount() const override { return 0; }
    irr::video::ITexture* getTexture(irr::u32) const override { return nullptr; }
    void addTexture(irr::video::ITexture*) override {}
    void setTexture(irr::u32, irr::video::ITexture*) override {}
    irr::s32 addTextureAsSprite(irr::video::ITexture*) override { return -1; }
    void clear() override {}
    /// The position is the sign's middle, whatever `center` says; nothing is drawn when it lies outside of the clip.
    void draw2DSprite(irr::u32 index, const irr::core::position2di& position, const irr::core::rect<irr::s32>* clip,
                      const irr::video::SColor& color, irr::u32 startTime, irr::u32 currentTime, bool loop,
                      bool center) override;
    void draw2DSpriteBatch(const irr::core::array<irr::u32>& indices,
                           const irr::core::array<irr::core::position2di>& positions,
                           const irr::core::rect<irr::s32>* clip, const irr::video::SColor& color, irr::u32 startTime,
                           irr::u32 currentTime, bool loop, bool center) override;

private:
    Drawer2D* drawer_;
    EngineRef<irr::video::ITexture> tick_;
    EngineRef<irr::video::ITexture> arrowUp_;
    EngineRef<irr::video::ITexture> cross_;
    int buttonSize_;
    irr::core::array<irr::core::rect<irr::s32>> positions_;
    irr::core::array<irr::gui::SGUISprite> sprites_;
};

} // namespace skyvane
