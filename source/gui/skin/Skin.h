#pragma once

#include "gui/skin/IExtendableSkin.h"

#include <map>
#include <string>

namespace skyvane {

/// The look of the program: named colours over the engine's default skin. Buttons and panes join with their widgets.
///
///     skin->getColor("bg")   // what the frame is cleared with
class Skin : public IExtendableSkin {
public:
    /// Over the environment's present skin, which stays alive beneath.
    explicit Skin(irr::gui::IGUIEnvironment* environment);

    /// Pixels of a button that a finger hits; every other size of the GUI follows.
    void setButtonSize(int width, int height);

    void setColor(const std::string& name, irr::video::SColor color);
    /// The engine's colour 3 for an unknown name.
    irr::video::SColor getColor(const std::string& name) const;
    using IExtendableSkin::getColor;
    using IExtendableSkin::setColor;

private:
    std::map<std::string, irr::video::SColor> colors_;
};

} // namespace skyvane
