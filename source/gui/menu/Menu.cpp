#include "gui/menu/Menu.h"

#include "core/Context.h"
#include "core/events/EventReceiver.h"
#include "displays/PanelManager.h"
#include "displays/drawing/Drawer2D.h"
#include "displays/setup/PresetDialog.h"
#include "gui/font/FlexibleFont.h"
#include "gui/menu/AltimeterWindow.h"
#include "gui/menu/FlightPlanWindow.h"
#include "gui/menu/ForwarderWindow.h"
#include "gui/menu/MenuColumn.h"
#include "gui/menu/PositionSimulator.h"
#include "gui/skin/Skin.h"
#include "sensors/SensorManager.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<int>;
const irr::video::SColor previewFrame(0xff5a6675), previewVeil(0x60000000);

bool isOverlapped(const irr::gui::IGUIElement* element, const Rect& rect) {
    return element->isVisible() && element->getAbsolutePosition().isRectCollided(rect);
}

} // namespace

Menu::Menu(Context* context, bool useColoredButtons)
    : IPanel(context), colored_(useColoredButtons), bar_(context, useColoredButtons) {}

Menu::~Menu() {
    hideMenuWindows();
}

void Menu::OnPageChange() {
    PanelManager* panels = context_->getPanelManager();
    bar_.showPage(panels->getCurrentPage(), panels->getPageCount());
    bar_.showSimulation(context_->getSensorManager()->isSimulationActive());
}

void Menu::OnProcedureChanged() {
    if (window_)
        window_->OnProcedureChanged();
}

void Menu::render(Rect) {
    OnPageChange();
    if (column_)
        column_->update();
    if (window_)
        window_->update();
    claimMessageSpace();
}

/// Messages keep clear of what is open, also behind a page's turn, which forgets all claims.
void Menu::claimMessageSpace() {
    PanelManager* panels = context_->getPanelManager();
    const bool isOpen = isShowingOptimizedSettings() || window_;
    if (isOpen) {
        const Rect open = isShowingOptimizedSettings() ? presets_->getRect() : window_->getRect();
        panels->updateNonMessageYArea(open.UpperLeftCorner.Y, open.LowerRightCorner.Y);
    } else if (hasClaim_) {
        panels->clearNonMessageYArea();
    }
    hasClaim_ = isOpen;
}

void Menu::open() {
    context_->getPanelManager()->hideAllPanelGUI();
    hideMenuWindows();
    column_ = std::make_unique<MenuColumn>(context_, colored_);
    context_->getEvents()->setBackButton(bar_.getMenuButton());
}

void Menu::close() {
    if (!column_)
        return;
    context_->getEvents()->setBackButton(nullptr);
    column_.reset();
}

void Menu::hideMenuWindows() {
    close();
    forceShowOptimizedSettings(false);
    window_.reset();
}

void Menu::show(std::unique_ptr<MenuWindow> window) {
    context_->getPanelManager()->hideAllPanelGUI();
    window_ = std::move(window);
    hideGUIWindowsExcept(window_->getWindow(), window_->getWindow()->getAbsolutePosition());
}

void Menu::hideGUIWindowsExcept(irr::gui::IGUIWindow* kept, const Rect& room) {
    irr::gui::IGUIElement* root = context_->getIrrlichtDevice()->getGUIEnvironment()->getRootGUIElement();
    for (irr::gui::IGUIElement* element : root->getChildren())
        if (element->getType() == irr::gui::EGUIET_WINDOW && element != kept && isOverlapped(element, room))
            element->setVisible(false);
}

void Menu::showAltimeterSettings() {
    hideMenuWindows();
    show(std::make_unique<AltimeterWindow>(context_));
}

void Menu::showFlightPlan() {
    hideMenuWindows();
    show(std::make_unique<FlightPlanWindow>(context_, plannedSpeed_));
}

void Menu::showSimulator() {
    hideMenuWindows();
    show(std::make_unique<PositionSimulator>(context_));
}

void Menu::showForwarders() {
    hideMenuWindows();
    show(std::make_unique<ForwarderWindow>(context_));
}

bool Menu::isShowingOptimizedSettings() const {
    return presets_ && presets_->isVisible();
}

void Menu::forceShowOptimizedSettings(bool show) {
    if (!show) {
        if (presets_)
            presets_->hide();
        return;
    }
    hideMenuWindows();
    if (!presets_)
        presets_ = std::make_unique<PresetDialog>(context_);
    presets_->show();
}

void Menu::setVisible(bool visible) {
    if (!visible)
        hideMenuWindows();
    bar_.setVisible(visible);
}

void Menu::setEnabled(bool enabled) {
    enabled_ = enabled;
    bar_.setEnabled(enabled);
    if (column_)
        column_->setEnabled(enabled);
}

bool Menu::processEvent(irr::SEvent event) {
    if (!enabled_)
        return true;
    if (presets_ && !presets_->processEvent(event))
        return false;
    if (event.EventType == irr::EET_MOUSE_INPUT_EVENT)
        return !processPress(event.MouseInput);
    if (event.EventType != irr::EET_GUI_EVENT)
        return true;
    if (window_ && window_->processEvent(event)) {
        if (!window_->isOpen())
            window_.reset();
        return false;
    }
    return !processBar(event) && !processColumn(event);
}

bool Menu::processBar(const irr::SEvent& event) {
    PanelManager* panels = context_->getPanelManager();
    switch (bar_.clickedBy(event)) {
    case MenuBar::Button::Menu:
        column_ ? close() : open();
        return true;
    case MenuBar::Button::PreviousPage:
        panels->previousPage();
        return true;
    case MenuBar::Button::NextPage:
        panels->nextPage();
        return true;
    default:
        return false;
    }
}

/// The last thing done: the row may replace this menu.
bool Menu::processColumn(const irr::SEvent& event) {
    if (!column_)
        return false;
    const MenuRow* row = column_->clickedBy(event);
    if (!row)
        return column_->processPlayback(event);
    close();
    row->run(*context_);
    return true;
}

/// A finger beside the open column turns to the page in the preview, or closes the column.
bool Menu::processPress(const irr::SEvent::SMouseInput& mouse) {
    const irr::core::position2di place(mouse.X, mouse.Y);
    if (!column_ || mouse.Event != irr::EMIE_LMOUSE_PRESSED_DOWN || column_->getRect().isPointInside(place) ||
        place.Y >= MenuBar::panelArea(context_->getScreenMetrics()).bottom)
        return false;
    if (isPreviewShown() && previewRect().isPointInside(place))
        context_->getPanelManager()->nextPage();
    else
        close();
    return true;
}

/// In the lower right corner, above the arrow that brings the page: the shape of the panel area.
Rect Menu::previewRect() const {
    const ScreenMetrics& metrics = context_->getScreenMetrics();
    const PanelArea area = MenuBar::panelArea(metrics);
    const int gap = metrics.buttonHeight / 3;
    const int room = std::max(1, area.width - column_->getRect().getWidth() - 2 * gap);
    const int areaHeight = std::max(1, area.bottom - area.top);
    const int height =
        std::min(areaHeight * 2 / 5, std::min(room, metrics.largeUnit * 5 / 4) * areaHeight / area.width);
    const int width = height * area.width / areaHeight;
    const irr::core::position2di corner(area.width - gap, area.bottom - gap);
    return {corner.X - width, corner.Y - height, corner.X, corner.Y};
}

/// Where there is another page, and no window over it.
bool Menu::isPreviewShown() const {
    if (!column_ || context_->getPanelManager()->getPageCount() < 2)
        return false;
    const Rect rect = previewRect();
    irr::gui::IGUIElement* root = context_->getIrrlichtDevice()->getGUIEnvironment()->getRootGUIElement();
    for (const irr::gui::IGUIElement* element : root->getChildren())
        if (isOverlapped(element, rect))
            return false;
    return true;
}

void Menu::renderInMenuPreview() {
    if (!isPreviewShown())
        return;
    const Rect rect = previewRect();
    Drawer2D* drawer = context_->getDrawer();
    constexpr int frame = 3;
    const Rect head(rect.UpperLeftCorner.X - frame,
                    rect.UpperLeftCorner.Y - context_->getRecommendedButtonHeight() * 2 / 3,
                    rect.LowerRightCorner.X + frame, rect.UpperLeftCorner.Y);
    drawer->drawFilledRect(
        {head.UpperLeftCorner.X, head.UpperLeftCorner.Y, head.LowerRightCorner.X, rect.LowerRightCorner.Y + frame},
        previewFrame);
    drawer->drawFilledRect(rect, context_->getSkin()->getColor("bg"));
    context_->getPanelManager()->renderPagePreview(rect, 1);
    // Dimmed and named: nobody shall read a picture of an instrument.
    drawer->resetViewPort();
    drawer->drawFilledRect(rect, previewVeil);
    drawer->flush();
    if (FlexibleFont* font = context_->getFlexibleFont())
        font->draw(L"Next page", head, irr::video::SColor(0xffffffff), true, true);
}

} // namespace skyvane
