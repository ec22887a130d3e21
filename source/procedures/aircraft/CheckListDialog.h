#pragma once

#include "core/engine/EngineRef.h"
#include "gui/windows/GUI.h"
#include "procedures/aircraft/profiles/Aircraft.h"

#include <irrlicht.h>
#include <memory>

namespace skyvane {

class Context;

/// Name and lines of a checklist, in a dialog that fills the screen. Main thread only.
class CheckListDialog {
public:
    explicit CheckListDialog(Context& context);
    ~CheckListDialog();
    CheckListDialog(const CheckListDialog&) = delete;
    CheckListDialog& operator=(const CheckListDialog&) = delete;

    /// True when "Ok" ended it; the list holds what was typed then. Empty lines are left out.
    bool run(CheckList& list);

private:
    irr::gui::IGUIElement* element(const char* id) const { return gui_->getElement(id); }

    Context& context_;
    EngineRef<irr::gui::IGUIWindow> window_;
    std::unique_ptr<GUI> gui_;
};

} // namespace skyvane
