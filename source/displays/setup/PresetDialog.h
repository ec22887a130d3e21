#pragma once

#include "core/engine/EngineRef.h"
#include "displays/IPanel.h"
#include "gui/windows/GUI.h"

#include <irrlicht.h>
#include <memory>

namespace skyvane {

class Context;

/// Asks which kind of flight the maps shall be set for: five presets and a check box that makes the choice the one of
/// every start. The panels stay in use beside the window.
///
///     PresetDialog dialog(context);
///     dialog.show();
///     ... if (!dialog.processEvent(event)) return false; ...   // each event of the queue
///
/// A choice is applied to all panels, stored or forgotten as the check box says, and hides the window; the back key
/// hides it without a choice. Main thread only.
class PresetDialog {
public:
    /// Hidden. The context outlives the dialog.
    explicit PresetDialog(Context* context);
    ~PresetDialog();
    PresetDialog(const PresetDialog&) = delete;
    PresetDialog& operator=(const PresetDialog&) = delete;

    /// Above all other windows, the check box as the configuration document has it.
    void show();
    void hide() { window_->setVisible(false); }
    bool isVisible() const { return window_->isVisible(); }
    irr::core::rect<int> getRect() const { return window_->getAbsolutePosition(); }
    /// False when the event was the dialog's.
    bool processEvent(const irr::SEvent& event);

private:
    void choose(IPanel::OptimizedSettings settings);
    bool isRemembered() const;

    Context* context_;
    EngineRef<irr::gui::IGUIWindow> window_;
    std::unique_ptr<GUI> gui_;
    irr::gui::IGUICheckBox* remember_ = nullptr;
};

} // namespace skyvane
