#pragma once

#include "core/engine/EngineRef.h"
#include "gui/skin/ISkinExtension.h"

#include <array>
#include <irrlicht.h>
#include <vector>

namespace skyvane {

/// A skin over the engine's default one, which isn't exported and so can't be derived from: every operation of IGUISkin
/// is forwarded. Keeps the default colours as the base of the brightness. Reference counted; main thread only.
class IExtendableSkin : public irr::gui::IGUISkin {
public:
    /// Shares the skin beneath.
    explicit IExtendableSkin(irr::gui::IGUISkin* base);

    /// Replaces the alpha of every default colour, 0 to 255.
    void setGUITransparency(int alpha);
    /// Red, green and blue of every default colour become the base colour's times the factor, rounded down. Never
    /// compounds: 1.0 restores the base colours. The alpha stays.
    void setGUIBrightness(float factor);

    /// Keeps a reference under this slot in place of what was there; null empties it. At most maximumExtensions slots:
    /// others are ignored.
    void registerExtension(ISkinExtension* extension, int slot);
    /// Null for an empty slot.
    ISkinExtension* getExtension(int slot) const;
    static constexpr int maximumExtensions = 64;

    // IGUISkin
    irr::video::SColor getColor(irr::gui::EGUI_DEFAULT_COLOR color) const override;
    void setColor(irr::gui::EGUI_DEFAULT_COLOR which, irr::video::SColor color) override;
    irr::s32 getSize(irr::gui::EGUI_DEFAULT_SIZE size) const override;
    const wchar_t* getDefaultText(irr::gui::EGUI_DEFAULT_TEXT text) const override;
    void setDefaultText(irr::gui::EGUI_DEFAULT_TEXT which, const wchar_t* text) override;
    void setSize(irr::gui::EGUI_DEFAULT_SIZE which, irr::s32 size) override;
    irr::gui::IGUIFont* getFont(irr::gui::EGUI_DEFAULT_FONT which = irr::gui::EGDF_DEFAULT) const override;
    void setFont(irr::gui::IGUIFont* font, irr::gui::EGUI_DEFAULT_FONT which = irr::gui::EGDF_DEFAULT) override;
    irr::gui::IGUISpriteBank* getSpriteBank() const override;
    void setSpriteBank(irr::gui::IGUISpriteBank* bank) override;
    irr::u32 getIcon(irr::gui::EGUI_DEFAULT_ICON icon) const override;
    void setIcon(irr::gui::EGUI_DEFAULT_ICON icon, irr::u32 index) override;
    irr::gui::EGUI_SKIN_TYPE getType() const override;
    void serializeAttributes(irr::io::IAttributes* out, irr::io::SAttributeReadWriteOptions* options) const override;
    void deserializeAttributes(irr::io::IAttributes* in, irr::io::SAttributeReadWriteOptions* options) override;

    using Element = irr::gui::IGUIElement;
    using Rect = irr::core::rect<irr::s32>;
    void draw3DButtonPaneStandard(Element* element, const Rect& rect, const Rect* clip) override;
    void draw3DButtonPanePressed(Element* element, const Rect& rect, const Rect* clip) override;
    void draw3DSunkenPane(Element* element, irr::video::SColor background, bool flat, bool fillBackground,
                          const Rect& rect, const Rect* clip) override;
    Rect draw3DWindowBackground(Element* element, bool drawTitleBar, irr::video::SColor titleBarColor, const Rect& rect,
                                const Rect* clip, Rect* checkClientArea) override;
    void draw3DMenuPane(Element* element, const Rect& rect, const Rect* clip) override;
    void draw3DToolBar(Element* element, const Rect& rect, const Rect* clip) override;
    void draw3DTabButton(Element* element, bool active, const Rect& rect, const Rect* clip,
                         irr::gui::EGUI_ALIGNMENT alignment) override;
    void draw3DTabBody(Element* element, bool border, bool background, const Rect& rect, const Rect* clip,
                       irr::s32 tabHeight, irr::gui::EGUI_ALIGNMENT alignment) override;
    void drawIcon(Element* element, irr::gui::EGUI_DEFAULT_ICON icon, const irr::core::position2di position,
                  irr::u32 startTime, irr::u32 currentTime, bool loop, const Rect* clip) override;
    void draw2DRectangle(Element* element, const irr::video::SColor& color, const Rect& rect,
                         const Rect* clip) override;

protected:
    /// A colour as the brightness leaves it.
    irr::video::SColor brightened(irr::video::SColor color) const;

private:
    EngineRef<irr::gui::IGUISkin> base_;
    std::array<irr::video::SColor, irr::gui::EGDC_COUNT> baseColors_;
    std::vector<EngineRef<ISkinExtension>> extensions_;
    float brightness_ = 1.0f;
};

} // namespace skyvane
