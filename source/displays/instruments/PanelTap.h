#pragma once

#include <irrlicht.h>

namespace skyvane {

/// A tap: the left button pressed and released inside the same area.
class PanelTap {
public:
    enum Result {
        NotMine, ///< The event travels on.
        Pressed, ///< The press that may become a tap.
        Tapped
    };

    Result take(const irr::SEvent& event, const irr::core::rect<int>& area);

private:
    bool armed_ = false;
};

} // namespace skyvane
