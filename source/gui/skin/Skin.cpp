#include "gui/skin/Skin.h"

namespace skyvane {
namespace {

struct DefaultColor {
    irr::gui::EGUI_DEFAULT_COLOR which;
    irr::u32 argb;
};

/// Light text on dark, nearly opaque panes: readable over any picture, and no glare at night.
constexpr DefaultColor palette[] = {
    {irr::gui::EGDC_3D_DARK_SHADOW, 0xff0c0f14},
    {irr::gui::EGDC_3D_SHADOW, 0xff171b22},
    {irr::gui::EGDC_3D_FACE, 0xfa2a313c},
    {irr::gui::EGDC_3D_HIGH_LIGHT, 0xff0f1319},
    {irr::gui::EGDC_3D_LIGHT, 0xff3b4452},
    {irr::gui::EGDC_ACTIVE_BORDER, 0xff1f5587},
    {irr::gui::EGDC_ACTIVE_CAPTION, 0xffffffff},
    {irr::gui::EGDC_INACTIVE_BORDER, 0xff323b48},
    {irr::gui::EGDC_INACTIVE_CAPTION, 0xffb4bcc8},
    {irr::gui::EGDC_APP_WORKSPACE, 0xff171b22},
    {irr::gui::EGDC_WINDOW, 0xff141920},
    {irr::gui::EGDC_WINDOW_SYMBOL, 0xfff2f5f9},
    {irr::gui::EGDC_GRAY_WINDOW_SYMBOL, 0xff6f7987},
    {irr::gui::EGDC_BUTTON_TEXT, 0xfff2f5f9},
    {irr::gui::EGDC_GRAY_TEXT, 0xff8a93a0},
    {irr::gui::EGDC_HIGH_LIGHT, 0xff2361a8},
    {irr::gui::EGDC_HIGH_LIGHT_TEXT, 0xffffffff},
    {irr::gui::EGDC_TOOLTIP, 0xfff2f5f9},
    {irr::gui::EGDC_TOOLTIP_BACKGROUND, 0xff2a313c},
    {irr::gui::EGDC_SCROLLBAR, 0xff0c0f14},
    {irr::gui::EGDC_ICON, 0xfff2f5f9},
    {irr::gui::EGDC_ICON_HIGH_LIGHT, 0xffffffff},
    {irr::gui::EGDC_EDITABLE, 0xff0f1319},
    {irr::gui::EGDC_GRAY_EDITABLE, 0xff232933},
    {irr::gui::EGDC_FOCUSED_EDITABLE, 0xff14263b},
};

} // namespace

Skin::Skin(irr::gui::IGUIEnvironment* environment)
    : IExtendableSkin(environment->getSkin()), environment_(environment) {
    for (const DefaultColor& color : palette)
        setColor(color.which, irr::video::SColor(color.argb));
    setColor("bg", irr::video::SColor(0xff0b0d11));
    setColor("rim", irr::video::SColor(0xff7d8a9c));
    setColor("focus", irr::video::SColor(0xff5fb0ff));
}

void Skin::setButtonSize(int width, int height) {
    setSize(irr::gui::EGDS_BUTTON_WIDTH, width);
    setSize(irr::gui::EGDS_BUTTON_HEIGHT, height);
    setSize(irr::gui::EGDS_WINDOW_BUTTON_WIDTH, height * 4 / 5);
    setSize(irr::gui::EGDS_TITLEBARTEXT_DISTANCE_X, height / 3);
    setSize(irr::gui::EGDS_TITLEBARTEXT_DISTANCE_Y, 0);
    setSize(irr::gui::EGDS_TEXT_DISTANCE_X, height / 5);
    setSize(irr::gui::EGDS_SCROLLBAR_SIZE, height * 3 / 4);
    setSize(irr::gui::EGDS_MENU_HEIGHT, height);
    setSize(irr::gui::EGDS_CHECK_BOX_WIDTH, height * 7 / 10);
    setSize(irr::gui::EGDS_MESSAGE_BOX_GAP_SPACE, height / 3);
    setSize(irr::gui::EGDS_MESSAGE_BOX_MIN_TEXT_WIDTH, 2 * width);
    setSize(irr::gui::EGDS_MESSAGE_BOX_MAX_TEXT_WIDTH, 4 * width);
    setSize(irr::gui::EGDS_MESSAGE_BOX_MIN_TEXT_HEIGHT, height);
}

void Skin::setColor(const std::string& name, irr::video::SColor color) {
    colors_[name] = color;
}

irr::video::SColor Skin::getColor(const std::string& name) const {
    const auto found = colors_.find(name);
    return found != colors_.end() ? found->second : getColor(static_cast<irr::gui::EGUI_DEFAULT_COLOR>(3));
}

irr::video::SColor Skin::getColor(irr::gui::EGUI_DEFAULT_COLOR color) const {
    if (nextText_ && color == irr::gui::EGDC_BUTTON_TEXT) {
        const irr::video::SColor text = brightened(nextText_->textColor);
        nextText_ = nullptr;
        return text;
    }
    return IExtendableSkin::getColor(color);
}

const ButtonTexture* Skin::getButtonTexture(const std::string& name) const {
    const auto found = textures_.find(name);
    return found != textures_.end() ? &found->second : nullptr;
}

void Skin::addButtonStyle(const std::string& name, const ButtonStyle& style) {
    nextText_ = nullptr;
    const auto [place, isNew] = styleIndices_.emplace(name, getButtonStyleCount());
    if (isNew)
        styles_.push_back(style);
    else
        styles_[place->second] = style;
}

const ButtonStyle* Skin::getButtonStyle(const std::string& name) const {
    const auto found = styleIndices_.find(name);
    return found != styleIndices_.end() ? &styles_[found->second] : nullptr;
}

const ButtonStyle* Skin::getButtonStyle(unsigned index) const {
    return index < styles_.size() ? &styles_[index] : nullptr;
}

} // namespace skyvane
