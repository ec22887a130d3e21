#pragma once

#include "core/engine/EngineRef.h"
#include "gui/keys/KeepVisible.h"

#include <irrlicht.h>

namespace skyvane {

/// Moves the window of an edit box out from behind on-screen input, and back afterwards. A window that its owner has
/// placed anew meanwhile stays where it is. Main thread only.
class WindowLift {
public:
    /// Keeps the edit box, which is in the GUI, clear of the covers. Called in each frame: follows what has changed.
    void lift(irr::gui::IGUIElement* editBox, const std::vector<irr::core::recti>& covers, int margin);
    /// All back to its place.
    void lower();
    /// What the lifted window has laid bare, in pixels of the screen; empty while none is lifted.
    irr::core::recti getBared() const;

private:
    /// An element that stands elsewhere than its owner has put it.
    struct Moved {
        EngineRef<irr::gui::IGUIElement> element;
        irr::core::recti before;
        irr::core::recti after;

        bool isInPlace() const { return element && element->getRelativePosition() == after; }
        void place(irr::gui::IGUIElement* moved, const irr::core::recti& to);
        void restore();
    };

    Moved window_;
    Moved editBox_;
};

} // namespace skyvane
