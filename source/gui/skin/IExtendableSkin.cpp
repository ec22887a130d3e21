#include "gui/skin/IExtendableSkin.h"

#include <algorithm>

namespace skyvane {

using irr::video::SColor;
using DefaultColor = irr::gui::EGUI_DEFAULT_COLOR;

IExtendableSkin::IExtendableSkin(irr::gui::IGUISkin* base) : base_(EngineRef<irr::gui::IGUISkin>::share(base)) {
    for (std::size_t i = 0; i < baseColors_.size(); ++i)
        baseColors_[i] = base_->getColor(static_cast<DefaultColor>(i));
}

void IExtendableSkin::setGUITransparency(int alpha) {
    for (std::size_t i = 0; i < baseColors_.size(); ++i) {
        SColor color = base_->getColor(static_cast<DefaultColor>(i));
        color.setAlpha(static_cast<irr::u32>(std::clamp(alpha, 0, 255)));
        base_->setColor(static_cast<DefaultColor>(i), color);
    }
}

void IExtendableSkin::setGUIBrightness(float factor) {
    brightness_ = factor;
    for (std::size_t i = 0; i < baseColors_.size(); ++i) {
        const DefaultColor which = static_cast<DefaultColor>(i);
        SColor color = brightened(baseColors_[i]);
        color.setAlpha(base_->getColor(which).getAlpha());
        base_->setColor(which, color);
    }
}

SColor IExtendableSkin::brightened(SColor color) const {
    const auto scaled = [this](irr::u32 component) {
        return static_cast<irr::u32>(std::clamp(static_cast<float>(component) * brightness_, 0.0f, 255.0f));
    };
    return SColor(color.getAlpha(), scaled(color.getRed()), scaled(color.getGreen()), scaled(color.getBlue()));
}

void IExtendableSkin::registerExtension(ISkinExtension* extension, int slot) {
    if (slot < 0 || slot >= maximumExtensions)
        return;
    const auto index = static_cast<std::size_t>(slot);
    if (index >= extensions_.size())
        extensions_.resize(index + 1);
    extensions_[index] = EngineRef<ISkinExtension>::share(extension);
}

ISkinExtension* IExtendableSkin::getExtension(int slot) const {
    const bool known = slot >= 0 && static_cast<std::size_t>(slot) < extensions_.size();
    return known ? extensions_[static_cast<std::size_t>(slot)].get() : nullptr;
}

SColor IExtendableSkin::getColor(DefaultColor color) const {
    return base_->getColor(color);
}

void IExtendableSkin::setColor(DefaultColor which, SColor color) {
    base_->setColor(which, color);
    if (static_cast<std::size_t>(which) < baseColors_.size())
        baseColors_[which] = color;
}

irr::s32 IExtendableSkin::getSize(irr::gui::EGUI_DEFAULT_SIZE size) const {
    return base_->getSize(size);
}

const wchar_t* IExtendableSkin::getDefaultText(irr::gui::EGUI_DEFAULT_TEXT text) const {
    return base_->getDefaultText(text);
}

void IExtendableSkin::setDefaultText(irr::gui::EGUI_DEFAULT_TEXT which, const wchar_t* text) {
    base_->setDefaultText(which, text);
}

void IExtendableSkin::setSize(irr::gui::EGUI_DEFAULT_SIZE which, irr::s32 size) {
    base_->setSize(which, size);
}

irr::gui::IGUIFont* IExtendableSkin::getFont(irr::gui::EGUI_DEFAULT_FONT which) const {
    return base_->getFont(which);
}

void IExtendableSkin::setFont(irr::gui::IGUIFont* font, irr::gui::EGUI_DEFAULT_FONT which) {
    base_->setFont(font, which);
}

irr::gui::IGUISpriteBank* IExtendableSkin::getSpriteBank() const {
    return base_->getSpriteBank();
}

void IExtendableSkin::setSpriteBank(irr::gui::IGUISpriteBank* bank) {
    base_->setSpriteBank(bank);
}

irr::u32 IExtendableSkin::getIcon(irr::gui::EGUI_DEFAULT_ICON icon) const {
    return base_->getIcon(icon);
}

void IExtendableSkin::setIcon(irr::gui::EGUI_DEFAULT_ICON icon, irr::u32 index) {
    base_->setIcon(icon, index);
}

irr::gui::EGUI_SKIN_TYPE IExtendableSkin::getType() const {
    return base_->getType();
}

void IExtendableSkin::serializeAttributes(irr::io::IAttributes* out,
                                          irr::io::SAttributeReadWriteOptions* options) const {
    base_->serializeAttributes(out, options);
}

void IExtendableSkin::deserializeAttributes(irr::io::IAttributes* in, irr::io::SAttributeReadWriteOptions* options) {
    base_->deserializeAttributes(in, options);
}

void IExtendableSkin::draw3DButtonPaneStandard(Element* element, const Rect& rect, const Rect* clip) {
    base_->draw3DButtonPaneStandard(element, rect, clip);
}

void IExtendableSkin::draw3DButtonPanePressed(Element* element, const Rect& rect, const Rect* clip) {
    base_->draw3DButtonPanePressed(element, rect, clip);
}

void IExtendableSkin::draw3DSunkenPane(Element* element, SColor background, bool flat, bool fillBackground,
                                       const Rect& rect, const Rect* clip) {
    base_->draw3DSunkenPane(element, background, flat, fillBackground, rect, clip);
}

IExtendableSkin::Rect IExtendableSkin::draw3DWindowBackground(Element* element, bool drawTitleBar, SColor titleBarColor,
                                                              const Rect& rect, const Rect* clip,
                                                              Rect* checkClientArea) {
    return base_->draw3DWindowBackground(element, drawTitleBar, titleBarColor, rect, clip, checkClientArea);
}

void IExtendableSkin::draw3DMenuPane(Element* element, const Rect& rect, const Rect* clip) {
    base_->draw3DMenuPane(element, rect, clip);
}

void IExtendableSkin::draw3DToolBar(Element* element, const Rect& rect, const Rect* clip) {
    base_->draw3DToolBar(element, rect, clip);
}

void IExtendableSkin::draw3DTabButton(Element* element, bool active, const Rect& rect, const Rect* clip,
                                      irr::gui::EGUI_ALIGNMENT alignment) {
    base_->draw3DTabButton(element, active, rect, clip, alignment);
}

void IExtendableSkin::draw3DTabBody(Element* element, bool border, bool background, const Rect& rect, const Rect* clip,
                                    irr::s32 tabHeight, irr::gui::EGUI_ALIGNMENT alignment) {
    base_->draw3DTabBody(element, border, background, rect, clip, tabHeight, alignment);
}

void IExtendableSkin::drawIcon(Element* element, irr::gui::EGUI_DEFAULT_ICON icon,
                               const irr::core::position2di position, irr::u32 startTime, irr::u32 currentTime,
                               bool loop, const Rect* clip) {
    base_->drawIcon(element, icon, position, startTime, currentTime, loop, clip);
}

void IExtendableSkin::draw2DRectangle(Element* element, const SColor& color, const Rect& rect, const Rect* clip) {
    base_->draw2DRectangle(element, color, rect, clip);
}

} // namespace skyvane
