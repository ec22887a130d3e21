#include "gui/skin/Skin.h"

namespace skyvane {
namespace {

struct DefaultColor {
    irr::gui::EGUI_DEFAULT_COLOR which;
    irr::u32 argb;
};

/// Light text on dark, nearly opaque panes: readable over any picture, and no glare at night.
constexpr DefaultColor palette[] = {
    {irr::gui::EGDC_3D_DARK_SHADOW, 0xff0c0f14},  {irr::gui::EGDC_3D_SHADOW, 0xff171b22},
    {irr::gui::EGDC_3D_FACE, 0xf22a313c},         {irr::gui::EGDC_3D_LIGHT, 0xff3b4452},
    {irr::gui::EGDC_ACTIVE_BORDER, 0xff1f5587},   {irr::gui::EGDC_ACTIVE_CAPTION, 0xffffffff},
    {irr::gui::EGDC_INACTIVE_BORDER, 0xff2a313c}, {irr::gui::EGDC_INACTIVE_CAPTION, 0xffb4bcc8},
    {irr::gui::EGDC_APP_WORKSPACE, 0xff171b22},   {irr::gui::EGDC_WINDOW, 0xff141920},
    {irr::gui::EGDC_WINDOW_SYMBOL, 0xfff2f5f9},   {irr::gui::EGDC_GRAY_WINDOW_SYMBOL, 0xff6f7987},
    {irr::gui::EGDC_BUTTON_TEXT, 0xfff2f5f9},     {irr::gui::EGDC_GRAY_TEXT, 0xff8a93a0},
    {irr::gui::EGDC_HIGH_LIGHT, 0xff2f6fb5},      {irr::gui::EGDC_HIGH_LIGHT_TEXT, 0xffffffff},
    {irr::gui::EGDC_TOOLTIP, 0xfff2f5f9},         {irr::gui::EGDC_TOOLTIP_BACKGROUND, 0xff2a313c},
    {irr::gui::EGDC_SCROLLBAR, 0xff1b2028},       {irr::gui::EGDC_ICON, 0xfff2f5f9},
    {irr::gui::EGDC_ICON_HIGH_LIGHT, 0xffffffff}, {irr::gui::EGDC_EDITABLE, 0xff141920},
    {irr::gui::EGDC_GRAY_EDITABLE, 0xff232933},   {irr::gui::EGDC_FOCUSED_EDITABLE, 0xff1b2a3b},
};

} // namespace

Skin::Skin(irr::gui::IGUIEnvironment* environment) : IExtendableSkin(environment->getSkin()) {
    for (const DefaultColor& color : palette)
        setColor(color.which, irr::video::SColor(color.argb));
    setColor("bg", irr::video::SColor(0xff0b0d11));
}

void Skin::setButtonSize(int width, int height) {
    setSize(irr::gui::EGDS_BUTTON_WIDTH, width);
    setSize(irr::gui::EGDS_BUTTON_HEIGHT, height);
    setSize(irr::gui::EGDS_WINDOW_BUTTON_WIDTH, height * 2 / 3);
    setSize(irr::gui::EGDS_TITLEBARTEXT_DISTANCE_X, height / 4);
    setSize(irr::gui::EGDS_SCROLLBAR_SIZE, height / 2);
    setSize(irr::gui::EGDS_MENU_HEIGHT, height);
    setSize(irr::gui::EGDS_CHECK_BOX_WIDTH, height / 2);
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

} // namespace skyvane
