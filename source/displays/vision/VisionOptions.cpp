#include "displays/vision/VisionOptions.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "core/ini/IniFile.h"
#include "core/log/Logger.h"
#include "displays/PanelManager.h"
#include "displays/vision/VisionDocuments.h"
#include "gui/skin/Skin.h"
#include "gui/windows/GUI.h"
#include "gui/windows/Help.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {
namespace {

constexpr const char* helpPage = "Map3DOptions.hti";
constexpr const char* trueMagneticBox = "crenderTrueMagHeading";
constexpr int saveTroubleMilliseconds = 5000;

/// The window while it is open.
class OptionsWindow {
public:
    OptionsWindow(Context& context, const VisionChoice& choice)
        : context_(context), formerBackButton_(context.getEvents()->getBackButton()) {
        irr::gui::IGUIEnvironment* environment = context.getIrrlichtDevice()->getGUIEnvironment();
        IniFile document =
            readLayout(context.isPortrait() ? visionOptionsPortraitLayout : visionOptionsLandscapeLayout);
        window_ = EngineRef<irr::gui::IGUIWindow>::share(addWindowForRatio(
            environment, &document, environment->getRootGUIElement()->getAbsolutePosition(), true, nullptr, -1));
        gui_ = std::make_unique<GUI>(environment, &document, windowArea(window_.get()), window_.get(), false);
        Skin::setButtonStyle(gui_->getElement("boptCancel"), "redNormal");
        Skin::setButtonStyle(gui_->getElement("boptOk"), "greenNormal");
        Skin::setButtonStyle(gui_->getElement("boptHelp"), "yellowNormal");
        prepareHelpButton(&context, gui_->getElement("boptHelp"), helpPage);
        context.getEvents()->setBackButton(gui_->getElement("boptCancel"));
        for (const VisionSwitchKey& each : visionSwitchKeys)
            box(each)->setChecked(choice.switches.*each.value);
        gui_->get<irr::gui::IGUICheckBox>(trueMagneticBox)->setChecked(choice.renderTrueMagHeading);
    }
    ~OptionsWindow() {
        context_.getEvents()->setBackButton(formerBackButton_);
        removeWindow(window_.get());
    }
    OptionsWindow(const OptionsWindow&) = delete;
    OptionsWindow& operator=(const OptionsWindow&) = delete;

    bool run(VisionChoice& choice) {
        ModalFrame frame;
        frame.onEvent = [this](const irr::SEvent& event) { onEvent(event); };
        ModalLoop loop(*context_.getFrames(), frame);
        loop.run([this] { return open_; });
        if (!accepted_)
            return false;
        for (const VisionSwitchKey& each : visionSwitchKeys)
            choice.switches.*each.value = box(each)->isChecked();
        choice.renderTrueMagHeading = gui_->get<irr::gui::IGUICheckBox>(trueMagneticBox)->isChecked();
        return true;
    }

private:
    irr::gui::IGUICheckBox* box(const VisionSwitchKey& each) const {
        return gui_->get<irr::gui::IGUICheckBox>(std::string("c") + each.key);
    }
    void onEvent(const irr::SEvent& event) {
        if (event.EventType == irr::EET_GUI_EVENT)
            gui_->Update(event.GUIEvent);
        if (isClickOf(event, gui_->getElement("boptHelp")))
            showHelp(&context_, helpPage);
        accepted_ = isClickOf(event, gui_->getElement("boptOk"));
        open_ = !accepted_ && !isClickOf(event, gui_->getElement("boptCancel"));
    }

    Context& context_;
    irr::gui::IGUIElement* formerBackButton_;
    EngineRef<irr::gui::IGUIWindow> window_;
    std::unique_ptr<GUI> gui_;
    bool open_ = true;
    bool accepted_ = false;
};

} // namespace

bool askVisionOptions(Context& context, VisionChoice& choice) {
    return OptionsWindow(context, choice).run(choice);
}

void storeVisionOptions(Context& context, const std::string& section, const VisionChoice& choice) {
    const std::string path = context.getConfigPath();
    IniFile config(path);
    for (const VisionSwitchKey& each : visionSwitchKeys)
        config.set(section, each.key, choice.switches.*each.value ? "1" : "0");
    config.set(section, VisionSettings::trueMagneticKey, choice.renderTrueMagHeading ? "1" : "0");
    if (config.Save(path))
        return;
    logText("The options of a synthetic view could not be saved to " + path + "\n");
    context.getPanelManager()->setMessage(&context, "The options could not be saved and end with this flight.",
                                          MESSAGE_YELLOW, saveTroubleMilliseconds);
}

} // namespace skyvane
