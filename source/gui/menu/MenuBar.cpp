#include "gui/menu/MenuBar.h"

#include "core/Context.h"
#include "gui/menu/MenuPane.h"
#include "gui/skin/Skin.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;
/// As the displays mark a simulated value.
const irr::video::SColor simulationBlue(0xff4fc3ff);

Rect barRect(const ScreenMetrics& metrics) {
    const int height = static_cast<int>(metrics.height);
    return {0, height - metrics.buttonHeight, static_cast<int>(metrics.width), height};
}

} // namespace

PanelArea MenuBar::panelArea(const ScreenMetrics& metrics) {
    return {static_cast<int>(metrics.width), 0, barRect(metrics).UpperLeftCorner.Y};
}

MenuBar::MenuBar(Context* context, bool useColoredButtons)
    : environment_(context->getIrrlichtDevice()->getGUIEnvironment()),
      pane_(EngineRef<irr::gui::IGUIElement>::adopt(
          new MenuPane(environment_, MenuPane::Look::Band, barRect(context->getScreenMetrics())))) {
    const int screen = pane_->getAbsolutePosition().getWidth();
    const int width = context->getRecommendedButtonWidth() * 3 / 2;
    menu_ = addButton(L"Menu", 0, width, useColoredButtons ? "menuRow" : "menuStdRow");
    previous_ = addButton(L"<", screen - 2 * width, width, useColoredButtons ? "blueRow" : "stdRow");
    next_ = addButton(L">", screen - width, width, useColoredButtons ? "blueRow" : "stdRow");
    pageText_ = environment_->addStaticText(
        L"", Rect(width, 0, screen - 2 * width, pane_->getAbsolutePosition().getHeight()), false, false, pane_.get());
    pageText_->setTextAlignment(irr::gui::EGUIA_CENTER, irr::gui::EGUIA_CENTER);
}

MenuBar::~MenuBar() {
    removeWindow(pane_.get());
}

irr::gui::IGUIButton* MenuBar::addButton(const wchar_t* label, int left, int width, const char* style) {
    constexpr int gap = 1;
    irr::gui::IGUIButton* button = environment_->addButton(
        Rect(left + gap, gap, left + width - gap, pane_->getAbsolutePosition().getHeight()), pane_.get(), -1, label);
    Skin::setButtonStyle(button, style);
    return button;
}

MenuBar::Button MenuBar::clickedBy(const irr::SEvent& event) const {
    if (isClickOf(event, menu_))
        return Button::Menu;
    if (isClickOf(event, previous_))
        return Button::PreviousPage;
    return isClickOf(event, next_) ? Button::NextPage : Button::None;
}

void MenuBar::showPage(int page, int pageCount) {
    if (page == page_ && pageCount == pageCount_)
        return;
    page_ = page;
    pageCount_ = pageCount;
    showText();
}

void MenuBar::showSimulation(bool isSimulated) {
    if (isSimulated == isSimulated_)
        return;
    isSimulated_ = isSimulated;
    if (isSimulated)
        pageText_->setOverrideColor(simulationBlue);
    else
        pageText_->enableOverrideColor(false);
    showText();
}

void MenuBar::showText() {
    const irr::core::stringw page = irr::core::stringw(page_ + 1) + L" / " + irr::core::stringw(pageCount_);
    irr::core::stringw text = isSimulated_ ? L"SIMULATION   Page " : L"Page ";
    text += page;
    const irr::u32 room = static_cast<irr::u32>(std::max(0, pageText_->getRelativePosition().getWidth()));
    if (isSimulated_ && environment_->getSkin()->getFont()->getDimension(text.c_str()).Width > room)
        text = irr::core::stringw(L"SIM   ") + page;
    pageText_->setText(text.c_str());
}

void MenuBar::setVisible(bool visible) {
    pane_->setVisible(visible);
}

void MenuBar::setEnabled(bool enabled) {
    for (irr::gui::IGUIButton* button : {menu_, previous_, next_})
        button->setEnabled(enabled);
}

} // namespace skyvane
