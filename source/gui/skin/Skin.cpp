#include "gui/skin/Skin.h"

namespace skyvane {

Skin::Skin(irr::gui::IGUIEnvironment* environment) : IExtendableSkin(environment->getSkin()) {
    setColor("bg", irr::video::SColor(0xff0b0d11));
}

void Skin::setColor(const std::string& name, irr::video::SColor color) {
    colors_[name] = color;
}

irr::video::SColor Skin::getColor(const std::string& name) const {
    const auto found = colors_.find(name);
    return found != colors_.end() ? found->second : getColor(static_cast<irr::gui::EGUI_DEFAULT_COLOR>(3));
}

} // namespace skyvane
