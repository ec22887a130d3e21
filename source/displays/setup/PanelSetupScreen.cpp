#include "displays/setup/PanelSetupScreen.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "core/ini/IniFile.h"
#include "core/log/Logger.h"
#include "core/text/Utf8.h"
#include "displays/PanelManager.h"
#include "displays/setup/PanelSetupPreview.h"
#include "displays/setup/SetupDocuments.h"
#include "gui/skin/Skin.h"
#include "gui/windows/Help.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/ListRows.h"
#include "gui/windows/Questions.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>

namespace skyvane {
namespace {

const char* const helpPage = "PanelSetup.hti";

bool isChoiceOf(const irr::SEvent& event) {
    return event.EventType == irr::EET_GUI_EVENT && (event.GUIEvent.EventType == irr::gui::EGET_LISTBOX_CHANGED ||
                                                     event.GUIEvent.EventType == irr::gui::EGET_LISTBOX_SELECTED_AGAIN);
}

} // namespace

const PanelSetupScreen::Action PanelSetupScreen::actions[] = {{"add", &PanelSetupScreen::add},
                                                              {"edit", &PanelSetupScreen::edit},
                                                              {"remove", &PanelSetupScreen::remove},
                                                              {"moveToTop", &PanelSetupScreen::moveToTop},
                                                              {"pageDown", &PanelSetupScreen::movePageDown},
                                                              {"pageUp", &PanelSetupScreen::movePageUp},
                                                              {"previousPage", &PanelSetupScreen::showPreviousPage},
                                                              {"nextPage", &PanelSetupScreen::showNextPage},
                                                              {"help", &PanelSetupScreen::help},
                                                              {"ok", &PanelSetupScreen::accept},
                                                              {"cancel", &PanelSetupScreen::cancel}};

PanelSetupScreen::PanelSetupScreen(Context* context, IniFile& document, const PanelArea& area)
    : context_(context), environment_(context->getIrrlichtDevice()->getGUIEnvironment()), document_(document),
      arrangement_(document, context->isPortrait()) {
    IniFile layout = readLayout(context->isPortrait() ? panelSetupPortraitLayout : panelSetupLandscapeLayout);
    const irr::core::rect<int> screen = environment_->getRootGUIElement()->getAbsolutePosition();
    window_ =
        EngineRef<irr::gui::IGUIWindow>::share(addWindowForRatio(environment_, &layout, screen, false, nullptr, -1));
    gui_ = std::make_unique<GUI>(environment_, &layout, windowArea(window_.get()), window_.get(), false);
    (new PanelSetupPreview(context, arrangement_, document_, area, window_.get(), gui_->getSpecialRectangle("preview")))
        ->drop();
    available_ = gui_->get<irr::gui::IGUIListBox>("available");
    actual_ = gui_->get<irr::gui::IGUIListBox>("actual");
    Skin::setButtonStyle(gui_->getElement("ok"), "greenNormal");
    Skin::setButtonStyle(gui_->getElement("cancel"), "redNormal");
    prepareHelpButton(context, gui_->getElement("help"), helpPage);
    listFactories();
    refresh();
}

PanelSetupScreen::~PanelSetupScreen() {
    gui_.reset();
    removeWindow(window_.get());
}

bool PanelSetupScreen::run() {
    IFrameRunner* frames = context_->getFrames();
    if (!frames)
        return false;
    ModalLoop loop(*frames, {[this](const irr::SEvent& event) { onEvent(event); }, ModalFrame::Backdrop::Grey});
    loop.run([this] {
        refresh();
        return state_ == State::Open;
    });
    context_->getEvents()->setBackButton(nullptr);
    return state_ == State::Saved;
}

void PanelSetupScreen::onEvent(const irr::SEvent& event) {
    if (isChoiceOf(event))
        return onList(event.GUIEvent.Caller);
    for (const Action& action : actions)
        if (isClickOf(event, gui_->getElement(action.button)))
            return (this->*action.run)();
}

void PanelSetupScreen::onList(irr::gui::IGUIElement* list) {
    const int row = actual_->getSelected();
    if (list == actual_ && row >= 0 && row < static_cast<int>(panelRows_.size()))
        arrangement_.choose(panelRows_[static_cast<size_t>(row)]);
}

void PanelSetupScreen::add() {
    const int row = available_->getSelected();
    if (row < 0 || row >= static_cast<int>(factoryRows_.size()))
        return;
    if (arrangement_.isFull())
        return tellInBox(*context_, L"There are as many panels as Skyvane can load. Please remove one first.");
    const int index = factoryRows_[static_cast<size_t>(row)];
    IPanelFactory* factory = context_->getPanelManager()->getPanelFactory(index);
    const std::string section = arrangement_.beginNew(index, factory->getName());
    if (ask(*factory, section))
        arrangement_.keepNew();
    else
        arrangement_.dropNew();
}

void PanelSetupScreen::edit() {
    const int panel = arrangement_.getChosen();
    if (panel == PanelArrangement::none)
        return;
    if (IPanelFactory* factory = context_->getPanelManager()->getPanelFactory(arrangement_.getFactoryIndex(panel)))
        ask(*factory, PanelArrangement::sectionOf(panel));
}

/// The options fill the screen.
bool PanelSetupScreen::ask(IPanelFactory& factory, const std::string& section) {
    window_->setVisible(false);
    const bool answered = factory.setup(&document_, section);
    window_->setVisible(true);
    return answered;
}

void PanelSetupScreen::help() {
    showHelp(context_, helpPage);
}

void PanelSetupScreen::accept() {
    const std::string path = context_->getConfigPath();
    if (document_.Save(path)) {
        state_ = State::Saved;
        return;
    }
    logText("The panels could not be saved to " + path + "\n");
    tellInBox(*context_, L"The panels could not be saved to " + decodeUtf8(path) + L".");
}

void PanelSetupScreen::listFactories() {
    const auto& factories = context_->getPanelManager()->getPanelFactories();
    std::vector<std::string> names;
    for (size_t i = 0; i < factories.size(); ++i) {
        if (!factories[i])
            continue;
        factoryRows_.push_back(static_cast<int>(i));
        names.push_back(factories[i]->getName());
    }
    fillList(available_, *context_->getSkin(), decodeRows(names));
}

void PanelSetupScreen::refresh() {
    // A dialog that came in between had a back button of its own.
    context_->getEvents()->setBackButton(gui_->getElement("cancel"));
    refreshPanels();
    refreshButtons();
    showText(gui_->getElement("page"), (L"Page:" + std::to_wstring(arrangement_.getPage())).c_str());
}

/// A list that stays the same keeps the place to which it was scrolled.
void PanelSetupScreen::refreshPanels() {
    panelRows_ = arrangement_.getPanels();
    std::vector<std::string> titles;
    for (const int panel : panelRows_)
        titles.push_back(arrangement_.getTitle(panel));
    if (titles != panelTitles_) {
        panelTitles_ = titles;
        fillList(actual_, *context_->getSkin(), decodeRows(titles));
    }
    const auto chosen = std::find(panelRows_.begin(), panelRows_.end(), arrangement_.getChosen());
    const int row = chosen == panelRows_.end() ? -1 : static_cast<int>(chosen - panelRows_.begin());
    if (actual_->getSelected() != row)
        actual_->setSelected(row);
}

void PanelSetupScreen::refreshButtons() {
    const int chosen = arrangement_.getChosen();
    const bool any = chosen != PanelArrangement::none;
    const IPanelFactory* factory =
        any ? context_->getPanelManager()->getPanelFactory(arrangement_.getFactoryIndex(chosen)) : nullptr;
    for (const char* button : {"remove", "moveToTop", "pageDown", "pageUp"})
        gui_->getElement(button)->setEnabled(any);
    gui_->getElement("edit")->setEnabled(factory && factory->hasOptions());
    gui_->getElement("add")->setEnabled(available_->getSelected() >= 0);
    gui_->getElement("previousPage")->setEnabled(arrangement_.getPage() > 0);
    gui_->getElement("nextPage")->setEnabled(arrangement_.getPage() < arrangement_.getPageCount());
}

} // namespace skyvane
