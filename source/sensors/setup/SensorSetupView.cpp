#include "core/Context.h"
#include "core/text/Utf8.h"
#include "gui/skin/Skin.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/WindowTools.h"
#include "sensors/SensorManager.h"
#include "sensors/setup/SensorSetup.h"

#include <algorithm>

namespace skyvane {
namespace {

using irr::gui::IGUIComboBox;
using irr::gui::IGUIListBox;

/// Visibility groups of the layouts.
constexpr int advancedGroup = 1;
constexpr int simpleGroup = 2;

} // namespace

/// Brings the whole screen to what the document says.
void SensorSetup::show() {
    for (const auto& [id, element] : gui_->elements)
        if (element->getDomain() != 0)
            element->getElement()->setVisible(element->getDomain() == (advanced_ ? advancedGroup : simpleGroup));
    showSensors();
    showTypes();
    showDefaultOfType();
    showText(gui_->getElement("teactSens"), usedText().c_str());
    enableButtons();
}

void SensorSetup::showSensors() {
    auto* list = get<IGUIListBox>("lacsens");
    auto* choice = get<IGUIComboBox>("cdefsens");
    const irr::s32 chosen = list->getSelected();
    std::vector<std::wstring> sensors, choices = {L"None"};
    for (int sensor = 1; sensor <= selection_->count(); ++sensor) {
        sensors.push_back(std::to_wstring(sensor) + L": " + decodeUtf8(selection_->getName(sensor)) +
                          (selection_->isKnown(sensor) ? L"" : L" (not available)"));
        choices.push_back(sensors.back());
    }
    fillList(list, *context_->getSkin(), sensors);
    fillChoice(choice, *context_->getSkin(), choices);
    list->setSelected(std::min(std::max(chosen, 0), selection_->count() - 1));
}

/// What no sensor gives is grey.
void SensorSetup::showTypes() {
    auto* list = get<IGUIListBox>("lsensdata");
    const irr::gui::IGUISkin* skin = context_->getIrrlichtDevice()->getGUIEnvironment()->getSkin();
    for (int type = 0; type < ISensorData::TypeCount; ++type) {
        const bool isGiven = selection_->getDefault(static_cast<ISensorData::Type>(type)) > 0;
        list->setItemOverrideColor(static_cast<irr::u32>(type), irr::gui::EGUI_LBC_TEXT,
                                   skin->getColor(isGiven ? irr::gui::EGDC_BUTTON_TEXT : irr::gui::EGDC_GRAY_TEXT));
    }
}

void SensorSetup::showDefaultOfType() {
    if (chosenType() >= 0)
        get<IGUIComboBox>("cdefsens")
            ->setSelected(selection_->getDefault(static_cast<ISensorData::Type>(chosenType())));
}

void SensorSetup::enableButtons() {
    const auto enable = [this](const char* id, bool can) { gui_->getElement(id)->setEnabled(can); };
    const int sensor = chosenSensor();
    enable("badd", chosenFactory() >= 0);
    enable("beuse", chosenFactory() >= 0);
    enable("bremove", sensor > 0);
    enable("bedit", sensor > 0 && selection_->isKnown(sensor));
    enable("bsetall", sensor > 0 && selection_->isKnown(sensor));
    enable("beedit", selection_->getUsed() > 0 && selection_->isKnown(selection_->getUsed()));
    enable("cdefsens", chosenType() >= 0);
}

std::wstring SensorSetup::usedText() const {
    const int used = selection_->getUsed();
    if (used < 0)
        return L"Sensors in use: several, as \"Advanced\" shows.";
    if (used == 0)
        return L"Sensor in use: none.\nChoose one from the list, and \"Use\".";
    const std::wstring name = L"Sensor in use: " + decodeUtf8(selection_->getName(used));
    ISensor* running = changed_ ? nullptr : context_->getSensorManager()->getSensorInterface(used);
    return running ? name + L"\n\n" + decodeUtf8(running->getSensorDetails()) : name;
}

} // namespace skyvane
