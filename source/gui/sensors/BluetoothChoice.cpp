#include "gui/sensors/BluetoothChoice.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "core/files/SafeFile.h"
#include "core/ini/IniFile.h"
#include "gui/sensors/BluetoothDialogs.h"
#include "gui/skin/Skin.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/WindowTools.h"

extern "C" const char bluetoothDeviceLayout[];

namespace skyvane {
namespace {

constexpr char DocumentPath[] = "data/extSensorConfig.ini";

} // namespace

BluetoothChoice::BluetoothChoice(Context* context) : context_(context) {
    irr::gui::IGUIEnvironment* environment = context->getIrrlichtDevice()->getGUIEnvironment();
    IniFile layout = readLayout(bluetoothDeviceLayout);
    window_ = addWindowForRatio(environment, &layout, environment->getRootGUIElement()->getAbsolutePosition(), true,
                                nullptr, -1);
    gui_ = std::make_unique<GUI>(environment, &layout, windowArea(window_), window_, false);
    Skin::setButtonStyle(gui_->getElement("bcancel"), "redNormal");
    Skin::setButtonStyle(gui_->getElement("bok"), "greenNormal");
    IniFile document(context->getPath(DocumentPath));
    devices_ = initFromExtConfig(document);
    list();
}

BluetoothChoice::~BluetoothChoice() {
    gui_.reset();
    removeWindow(window_);
}

bool BluetoothChoice::run() {
    irr::gui::IGUIElement* former = context_->getEvents()->getBackButton();
    context_->getEvents()->setBackButton(gui_->getElement("bcancel"));
    ModalLoop loop(*context_->getFrames(), {[this](const irr::SEvent& event) { onEvent(event); }});
    loop.run([this] { return open_; });
    context_->getEvents()->setBackButton(former);
    return accepted_;
}

void BluetoothChoice::onEvent(const irr::SEvent& event) {
    if (isClickOf(event, gui_->getElement("bcancel")))
        open_ = false;
    else if (isClickOf(event, gui_->getElement("bdiscovery")))
        discover();
    else if (isClickOf(event, gui_->getElement("bok")))
        accept();
    else
        return;
    // What a button opened has put its own in this place.
    context_->getEvents()->setBackButton(gui_->getElement("bcancel"));
}

void BluetoothChoice::discover() {
    if (runBluetoothDiscovery(context_, devices_))
        list();
}

void BluetoothChoice::accept() {
    const irr::s32 chosen = listBox()->getSelected();
    const bool isChosen = chosen >= 0 && static_cast<size_t>(chosen) < devices_.size();
    const BluetoothDevice* device = isChosen ? &devices_[static_cast<size_t>(chosen)] : nullptr;
    if (!runBTConnectionCheck(context_, device))
        return;
    const std::string path = context_->getPath(DocumentPath);
    IniFile document(path);
    storeExtConfig(document, *device);
    if (const int error = saveFileSafely(path, document.toString()))
        return context_->showMessageBox("The device could not be saved. " + whyNotWritten(error));
    accepted_ = true;
    open_ = false;
}

void BluetoothChoice::list() {
    std::vector<std::wstring> rows;
    for (const BluetoothDevice& device : devices_)
        rows.push_back(bluetoothLabel(device));
    fillList(listBox(), *context_->getSkin(), rows);
    listBox()->setSelected(devices_.empty() ? -1 : 0);
}

} // namespace skyvane
