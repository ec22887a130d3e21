#include "gui/menu/MenuWindow.h"

#include "core/Context.h"
#include "core/events/EventReceiver.h"
#include "displays/layout/PageLayout.h"
#include "gui/menu/MenuBar.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr double shareOfPanels = 0.62;

} // namespace

MenuWindow::MenuWindow(Context* context, const char* landscape, const char* portrait, Place place) : context_(context) {
    irr::gui::IGUIEnvironment* environment = context->getIrrlichtDevice()->getGUIEnvironment();
    IniFile document = readLayout(context->isPortrait() ? portrait : landscape);
    const PanelArea area = MenuBar::panelArea(context->getScreenMetrics());
    const int height = static_cast<int>((area.bottom - area.top) * shareOfPanels);
    const int top = place == Place::Low ? area.bottom - height : area.top;
    window_ = EngineRef<irr::gui::IGUIWindow>::share(addWindowForRatio(
        environment, &document, irr::core::rect<int>(0, top, area.width, top + height), false, nullptr, -1));
    gui_ = std::make_unique<GUI>(environment, &document, windowArea(window_.get()), window_.get(), false);
    context->getEvents()->setBackButton(element("bclose"));
}

MenuWindow::~MenuWindow() {
    context_->getEvents()->setBackButton(nullptr);
    removeWindow(window_.get());
}

/// Compares only: who sent a queued event may be gone.
bool MenuWindow::isOwn(const irr::gui::IGUIElement* caller) const {
    return std::any_of(gui_->elements.begin(), gui_->elements.end(),
                       [caller](const auto& each) { return each.second->getElement() == caller; });
}

void MenuWindow::runOnWholeScreen(const std::function<void()>& run) {
    window_->setVisible(false);
    run();
    window_->setVisible(true);
    context_->getEvents()->setBackButton(element("bclose"));
}

bool MenuWindow::processEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT || !isOwn(event.GUIEvent.Caller))
        return false;
    gui_->Update(event.GUIEvent);
    if (isClickOf(event, element("bclose")))
        open_ = false;
    else
        onEvent(event);
    return true;
}

} // namespace skyvane
