#pragma once

#include "core/engine/EngineRef.h"

#include <irrlicht.h>
#include <vector>

namespace skyvane {

/// Hides what stands on the screen while a dialog has it all, the menu's bar and windows and the dialogs beneath, and
/// shows it again at the end. Made before the dialog's own window; may be nested. Main thread only.
class WholeGlass {
public:
    explicit WholeGlass(irr::gui::IGUIEnvironment* environment);
    ~WholeGlass();
    WholeGlass(const WholeGlass&) = delete;
    WholeGlass& operator=(const WholeGlass&) = delete;

private:
    void hide(irr::gui::IGUIElement* element);

    std::vector<EngineRef<irr::gui::IGUIElement>> hidden_;
};

} // namespace skyvane
