#include "sensors/setup/SensorSetup.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/engine/ShowState.h"
#include "core/text/Utf8.h"
#include "gui/skin/Skin.h"
#include "gui/windows/BackButton.h"
#include "gui/windows/Help.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/Questions.h"
#include "gui/windows/WindowTools.h"
#include "sensors/SensorConfig.h"
#include "sensors/SensorManager.h"
#include "sensors/setup/Calibration.h"

#include <algorithm>

extern "C" {
extern const char sensorSetupLandscapeLayout[];
extern const char sensorSetupPortraitLayout[];
}

namespace skyvane {
namespace {

using irr::gui::IGUIComboBox;
using irr::gui::IGUIListBox;

constexpr const char* helpPage = "CustomSensorSetup.hti";
/// Chooses the row again that was chosen before, as far as there are that many.
void reselect(IGUIListBox* list, irr::s32 row) {
    const auto count = static_cast<irr::s32>(list->getItemCount());
    list->setSelected(std::min(row, count - 1));
}

/// Tells the sensors that the screen is entered, and left.
class SetupNotice {
public:
    explicit SetupNotice(SensorManager& sensors) : sensors_(sensors) { tell(&ISensor::OnSetup); }
    ~SetupNotice() { tell(&ISensor::OnSetupExit); }
    SetupNotice(const SetupNotice&) = delete;
    SetupNotice& operator=(const SetupNotice&) = delete;

private:
    void tell(void (ISensor::*what)()) {
        for (int i = 0; i < sensors_.getSensorInterfaceCount(); ++i)
            (sensors_.getSensorInterface(i)->*what)();
    }

    SensorManager& sensors_;
};

} // namespace

const SensorSetup::Action SensorSetup::actions[] = {
    {"badd", &SensorSetup::add},         {"bremove", &SensorSetup::remove},
    {"bedit", &SensorSetup::edit},       {"bsetall", &SensorSetup::useForAll},
    {"beuse", &SensorSetup::useOne},     {"beedit", &SensorSetup::editUsed},
    {"bcalib", &SensorSetup::calibrate}, {"beadvanced", &SensorSetup::goAdvanced},
    {"bhelp", &SensorSetup::help},       {"bcancel", &SensorSetup::cancel},
    {"bok", &SensorSetup::accept},
};

bool SensorSetup::run(IniFile* document) {
    IniFile changed = *document;
    SensorManager& sensors = *context_->getSensorManager();
    const SetupNotice notice(sensors);
    selection_ = std::make_unique<SensorSelection>(sensors, &changed);
    advanced_ = changed_ = accepted_ = false;
    open_ = true;
    build();
    show();
    const BackButton back(context_->getEvents(), gui_->getElement("bcancel"));
    ModalLoop loop(*context_->getFrames(), {[this](const irr::SEvent& event) { onEvent(event); }});
    loop.run([this] { return open_; });
    gui_.reset();
    selection_.reset();
    removeWindow(window_);
    if (accepted_)
        *document = std::move(changed);
    return accepted_;
}

void SensorSetup::build() {
    irr::gui::IGUIEnvironment* environment = context_->getIrrlichtDevice()->getGUIEnvironment();
    IniFile layout = readLayout(context_->isPortrait() ? sensorSetupPortraitLayout : sensorSetupLandscapeLayout);
    window_ = addWindowForRatio(environment, &layout, environment->getRootGUIElement()->getAbsolutePosition(), true,
                                nullptr, -1);
    gui_ = std::make_unique<GUI>(environment, &layout, windowArea(window_), window_, false);
    Skin::setButtonStyle(gui_->getElement("bcancel"), "redNormal");
    Skin::setButtonStyle(gui_->getElement("bok"), "greenNormal");
    prepareHelpButton(context_, gui_->getElement("bhelp"), helpPage);
    gui_->getElement("bcalib")->setText(calibrationLabel(*context_).c_str());
    irr::s32 used = 0;
    std::vector<std::string> kinds, types;
    for (const int factory : selection_->getFactories()) {
        if (selection_->getFactory(selection_->getUsed()) == factory)
            used = static_cast<irr::s32>(kinds.size());
        kinds.push_back(selection_->getFactoryName(factory));
    }
    fillList(get<IGUIListBox>("lsens"), *context_->getSkin(), decodeRows(kinds));
    reselect(get<IGUIListBox>("lsens"), used);
    for (const ISensorData::Type type : allDataTypes()) {
        ISensorDataFactory* factory = context_->getSensorManager()->getSensorDataFactory(type);
        types.push_back(factory ? factory->getName() : "?");
    }
    fillList(get<IGUIListBox>("lsensdata"), *context_->getSkin(), decodeRows(types));
    reselect(get<IGUIListBox>("lsensdata"), 0);
}

void SensorSetup::onEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT || !open_)
        return;
    gui_->Update(event.GUIEvent);
    if (event.GUIEvent.EventType == irr::gui::EGET_COMBO_BOX_CHANGED &&
        event.GUIEvent.Caller == gui_->getElement("cdefsens"))
        return chooseDefault();
    if (event.GUIEvent.EventType == irr::gui::EGET_LISTBOX_CHANGED) {
        showDefaultOfType();
        enableButtons();
    }
    for (const Action& action : actions)
        if (isClickOf(event, gui_->getElement(action.button))) {
            (this->*action.run)();
            return open_ ? show() : void();
        }
}

void SensorSetup::add() {
    changed_ = selection_->add(chosenFactory()) || changed_;
}

void SensorSetup::useOne() {
    changed_ = selection_->useOnly(chosenFactory()) || changed_;
}

void SensorSetup::edit() {
    changed_ = selection_->edit(chosenSensor()) || changed_;
}

void SensorSetup::editUsed() {
    changed_ = selection_->edit(selection_->getUsed()) || changed_;
}

void SensorSetup::remove() {
    selection_->remove(chosenSensor());
    changed_ = true;
}

void SensorSetup::useForAll() {
    selection_->useForAll(chosenSensor());
}

void SensorSetup::chooseDefault() {
    const auto type = static_cast<ISensorData::Type>(chosenType());
    const bool isSet = selection_->setDefault(type, get<IGUIComboBox>("cdefsens")->getSelected());
    show();
    if (!isSet)
        tellInBox(*context_, L"Data Type not supported by selected sensor.");
}

void SensorSetup::calibrate() {
    calibrateSensors(*context_);
}

void SensorSetup::goAdvanced() {
    advanced_ = true;
}

void SensorSetup::help() {
    showHelp(context_, helpPage);
}

void SensorSetup::accept() {
    showState(context_->getIrrlichtDevice(), L"Please wait...");
    accepted_ = true;
    open_ = false;
}

int SensorSetup::chosenFactory() const {
    const irr::s32 row = get<IGUIListBox>("lsens")->getSelected();
    const auto& factories = selection_->getFactories();
    return row >= 0 && static_cast<std::size_t>(row) < factories.size() ? factories[static_cast<std::size_t>(row)] : -1;
}

int SensorSetup::chosenSensor() const {
    return get<IGUIListBox>("lacsens")->getSelected() + 1;
}

int SensorSetup::chosenType() const {
    return get<IGUIListBox>("lsensdata")->getSelected();
}

} // namespace skyvane
