#include "gui/windows/ListScreen.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/text/Utf8.h"
#include "gui/skin/Skin.h"
#include "gui/windows/BackButton.h"
#include "gui/windows/Help.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {

ListScreen::ListScreen(Context& context, const Texts& texts) : context_(context), helpPage_(texts.helpPage) {
    irr::gui::IGUIEnvironment* environment = context.getIrrlichtDevice()->getGUIEnvironment();
    IniFile document = readLayout(context.isPortrait() ? listScreenPortraitLayout : listScreenLandscapeLayout);
    window_ = EngineRef<irr::gui::IGUIWindow>::share(addWindowForRatio(
        environment, &document, environment->getRootGUIElement()->getAbsolutePosition(), true, nullptr, -1));
    gui_ = std::make_unique<GUI>(environment, &document, windowArea(window_.get()), window_.get(), false);
    element("tlist")->setText(texts.label);
    element("bmore")->setText(texts.more);
    if (*texts.more == 0) { // its place is taken
        element("bmore")->setVisible(false);
        element("bdelete")->setRelativePosition(element("bmore")->getRelativePosition());
    }
    Skin::setButtonStyle(element("bcancel"), "redNormal");
    prepareHelpButton(&context, element("bhelp"), helpPage_.c_str());
}

ListScreen::~ListScreen() {
    removeWindow(window_.get());
}

void ListScreen::run() {
    open_ = true;
    const BackButton back(context_.getEvents(), element("bcancel"));
    ModalLoop loop(*context_.getFrames(),
                   {[this](const irr::SEvent& event) { onEvent(event); }, ModalFrame::Backdrop::Grey});
    loop.run([this] { return open_; });
}

void ListScreen::refresh(int selected) {
    fillList(list(), *context_.getSkin(), decodeRows(names()));
    list()->setSelected(selected);
    enableButtons();
}

void ListScreen::enableButtons() {
    for (const char* id : {"bedit", "bmore", "bdelete"})
        element(id)->setEnabled(list()->getSelected() >= 0);
}

void ListScreen::onEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT)
        return;
    const bool isChoice = event.GUIEvent.EventType == irr::gui::EGET_LISTBOX_CHANGED ||
                          event.GUIEvent.EventType == irr::gui::EGET_LISTBOX_SELECTED_AGAIN;
    if (isChoice && event.GUIEvent.Caller == list() && list()->getSelected() >= 0)
        onSelect(list()->getSelected());
    enableButtons();
    if (event.GUIEvent.EventType == irr::gui::EGET_BUTTON_CLICKED)
        onClick(event);
}

void ListScreen::onClick(const irr::SEvent& event) {
    const int selected = list()->getSelected();
    if (isClickOf(event, element("bcancel")))
        open_ = false;
    else if (isClickOf(event, element("bnew")))
        onNew();
    else if (isClickOf(event, element("bhelp")))
        showHelp(&context_, helpPage_.c_str());
    else if (selected >= 0 && isClickOf(event, element("bedit")))
        onEdit(selected);
    else if (selected >= 0 && isClickOf(event, element("bmore")))
        onMore(selected);
    else if (selected >= 0 && isClickOf(event, element("bdelete")))
        onDelete(selected);
}

} // namespace skyvane
