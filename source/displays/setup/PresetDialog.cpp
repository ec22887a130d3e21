#include "displays/setup/PresetDialog.h"

#include "core/Context.h"
#include "core/ini/IniFile.h"
#include "displays/PanelManager.h"
#include "displays/setup/SetupDocuments.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/WindowTools.h"

#include <utility>

namespace skyvane {
namespace {

constexpr std::pair<const char*, IPanel::OptimizedSettings> choices[] = {{"default", IPanel::OPTIMIZED_DEFAULT},
                                                                         {"glider", IPanel::OPTIMIZED_GLIDER},
                                                                         {"vfr", IPanel::OPTIMIZED_VFR},
                                                                         {"ifr", IPanel::OPTIMIZED_IFR},
                                                                         {"ifrhigh", IPanel::OPTIMIZED_IFR_HIGH}};
constexpr int backKey = 0xA6;

bool isBackKey(const irr::SEvent& event) {
    return event.EventType == irr::EET_KEY_INPUT_EVENT && event.KeyInput.Key == backKey && !event.KeyInput.PressedDown;
}

/// In the middle of the screen, with a rim around it through which the panels are seen.
irr::core::rect<int> placeOf(irr::core::rect<int> screen) {
    constexpr int rim = 12; // of the screen's sides, one part
    const irr::core::vector2d<int> by(screen.getWidth() / rim, screen.getHeight() / rim);
    return {screen.UpperLeftCorner + by, screen.LowerRightCorner - by};
}

} // namespace

PresetDialog::PresetDialog(Context* context) : context_(context) {
    irr::gui::IGUIEnvironment* environment = context->getIrrlichtDevice()->getGUIEnvironment();
    IniFile document = readLayout(presetLayout);
    const irr::core::rect<int> area = placeOf(environment->getRootGUIElement()->getAbsolutePosition());
    window_ =
        EngineRef<irr::gui::IGUIWindow>::share(addWindowForRatio(environment, &document, area, false, nullptr, -1));
    window_->setVisible(false);
    gui_ = std::make_unique<GUI>(environment, &document, windowArea(window_.get()), window_.get(), false);
    remember_ = gui_->get<irr::gui::IGUICheckBox>("remember");
}

PresetDialog::~PresetDialog() {
    gui_.reset();
    removeWindow(window_.get());
}

void PresetDialog::show() {
    remember_->setChecked(isRemembered());
    window_->setVisible(true);
    if (irr::gui::IGUIElement* parent = window_->getParent())
        parent->bringToFront(window_.get());
}

bool PresetDialog::processEvent(const irr::SEvent& event) {
    if (!isVisible())
        return true;
    if (isBackKey(event)) {
        hide();
        return false;
    }
    for (const auto& [id, settings] : choices) {
        if (isClickOf(event, gui_->getElement(id))) {
            choose(settings);
            return false;
        }
    }
    return true;
}

/// The document is written only when it would change: most choices are for one flight.
void PresetDialog::choose(IPanel::OptimizedSettings settings) {
    hide();
    PanelManager* panels = context_->getPanelManager();
    panels->applyOptimizedSettings(settings);
    if (remember_->isChecked())
        panels->writeOptimizedSetting(settings);
    else if (isRemembered())
        panels->writeOptimizedSetting(IPanel::OPTIMIZED_NONE);
}

bool PresetDialog::isRemembered() const {
    IniFile config(context_->getConfigPath());
    return config.isAvailable("", "optimized") && !config.get("", "optimized").empty();
}

} // namespace skyvane
