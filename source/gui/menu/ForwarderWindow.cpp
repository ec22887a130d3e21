#include "gui/menu/ForwarderWindow.h"

#include "core/Context.h"
#include "core/text/Utf8.h"
#include "gui/layoutmath/ShortText.h"
#include "gui/menu/MenuLayouts.h"
#include "gui/skin/Skin.h"
#include "gui/windows/AskYesNo.h"
#include "gui/windows/Help.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/WindowTools.h"
#include "sensors/SensorManager.h"

namespace skyvane {
namespace {

const char* const helpFile = "Forwarding.hti";

/// A forwarder's name as a row of the list shows it: its kind, and of where it leads to the end.
std::wstring shortName(const irr::gui::IGUIListBox& list, irr::gui::IGUISkin* skin, const std::wstring& name) {
    const int margin = skin->getSize(irr::gui::EGDS_SCROLLBAR_SIZE) / 2;
    const int room = list.getAbsolutePosition().getWidth() - skin->getSize(irr::gui::EGDS_SCROLLBAR_SIZE) - margin;
    const size_t colon = name.find(L": ");
    return keepEnd(name, colon == std::wstring::npos ? 0 : colon + 2, [&](const std::wstring& text) {
        return static_cast<int>(skin->getFont()->getDimension(text.c_str()).Width) <= room;
    });
}

} // namespace

ForwarderWindow::ForwarderWindow(Context* context)
    : MenuWindow(context, forwardersLandscapeLayout, forwardersPortraitLayout) {
    SensorManager* sensors = context->getSensorManager();
    std::vector<std::string> methods;
    for (int i = 0; i < sensors->getForwarderFactoryCount(); ++i) {
        ISensorForwarderFactory* factory = sensors->getForwarderFactory(i);
        if (!factory)
            continue;
        factories_.push_back(i);
        methods.push_back(factory->getName());
    }
    fillList(list("lmethods"), *context->getSkin(), decodeRows(methods));
    if (!factories_.empty())
        list("lmethods")->setSelected(0);
    prepareHelpButton(context, element("bhelp"), helpFile);
    updateForwarderListBox();
}

void ForwarderWindow::updateForwarderListBox() {
    SensorManager* sensors = context_->getSensorManager();
    irr::gui::IGUIListBox* forwarders = list("lforwarders");
    irr::gui::IGUISkin* skin = context_->getIrrlichtDevice()->getGUIEnvironment()->getSkin();
    forwarders->clear();
    for (int i = 0; i < sensors->getSensorForwarderCount(); ++i) {
        const std::wstring name = decodeUtf8(sensors->getSensorForwarder(i)->getName());
        forwarders->addItem(shortName(*forwarders, skin, name).c_str());
    }
    element("bremove")->setEnabled(sensors->getSensorForwarderCount() > 0);
}

void ForwarderWindow::onEvent(const irr::SEvent& event) {
    if (isClickOf(event, element("badd")))
        add();
    else if (isClickOf(event, element("bremove")))
        remove();
    else if (isClickOf(event, element("bhelp")))
        showHelp(context_, helpFile);
}

void ForwarderWindow::add() {
    const irr::s32 selected = list("lmethods")->getSelected();
    if (selected < 0)
        return;
    SensorManager* sensors = context_->getSensorManager();
    const int index = factories_[static_cast<std::size_t>(selected)];
    ISensorForwarderFactory* factory = sensors->getForwarderFactory(index);
    if (factory->setup())
        sensors->addSensorForwarder(index, factory->Create());
    updateForwarderListBox();
}

void ForwarderWindow::remove() {
    const irr::s32 selected = list("lforwarders")->getSelected();
    if (selected < 0 || !askYesNo(*context_, L"Do you really want to remove the selected forwarder?"))
        return;
    context_->getSensorManager()->deleteSensorForwarder(selected);
    updateForwarderListBox();
}

} // namespace skyvane
