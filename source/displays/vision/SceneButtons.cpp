#include "displays/vision/SceneButtons.h"

#include "core/Context.h"
#include "core/time/Time.h"
#include "gui/skin/Skin.h"
#include "gui/windows/Help.h"

#include <algorithm>

namespace skyvane {
namespace {

constexpr unsigned momentMilliseconds = 6000;

} // namespace

SceneButtons::SceneButtons(Context* context) : context_(context) {
    add(0, L"Center", "greyVis");
    add(1, L"Options", "blueVis");
    add(2, L"Help", "yellowVis");
    prepareHelpButton(context, buttons_[2].get(), "Map3D.hti");
}

SceneButtons::~SceneButtons() {
    for (EngineRef<irr::gui::IGUIElement>& button : buttons_)
        if (button)
            button->remove();
}

void SceneButtons::add(int which, const wchar_t* label, const char* style) {
    irr::gui::IGUIEnvironment* environment = context_->getIrrlichtDevice()->getGUIEnvironment();
    irr::gui::IGUIButton* button = environment->addButton({0, 0, 1, 1}, nullptr, -1, label);
    Skin::setButtonStyle(button, style);
    button->setVisible(false);
    buttons_[which] = EngineRef<irr::gui::IGUIElement>::share(button);
}

void SceneButtons::place(const irr::core::rect<int>& panel) {
    const int gap = context_->getRecommendedButtonHeight() / 4;
    const int width = std::min(context_->getRecommendedButtonWidth(), (panel.getWidth() - (count + 1) * gap) / count);
    const int bottom = panel.LowerRightCorner.Y - gap, top = bottom - context_->getRecommendedButtonHeight();
    int left = panel.getCenter().X - (count * width + (count - 1) * gap) / 2;
    for (EngineRef<irr::gui::IGUIElement>& button : buttons_) {
        button->setRelativePosition(irr::core::rect<int>(left, top, left + width, bottom));
        left += width + gap;
    }
}

void SceneButtons::show(const irr::core::rect<int>& panel) {
    place(panel);
    visible_ = true;
    shownMilliseconds_ = MilliSecs();
    for (EngineRef<irr::gui::IGUIElement>& button : buttons_)
        button->setVisible(true);
}

void SceneButtons::hide() {
    visible_ = false;
    for (EngineRef<irr::gui::IGUIElement>& button : buttons_)
        button->setVisible(false);
}

void SceneButtons::update(const irr::core::rect<int>& panel) {
    if (!visible_)
        return;
    if (TimeDiff(MilliSecs(), shownMilliseconds_) > momentMilliseconds)
        hide();
    else
        place(panel);
}

SceneButtons::Button SceneButtons::clickedBy(const irr::SEvent& event) const {
    if (event.EventType != irr::EET_GUI_EVENT || event.GUIEvent.EventType != irr::gui::EGET_BUTTON_CLICKED)
        return Button::None;
    const Button meanings[count] = {Button::Center, Button::Options, Button::Help};
    for (int i = 0; i < count; ++i)
        if (event.GUIEvent.Caller == buttons_[i].get())
            return meanings[i];
    return Button::None;
}

} // namespace skyvane
