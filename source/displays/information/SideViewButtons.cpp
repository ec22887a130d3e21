#include "displays/information/SideViewButtons.h"

#include "core/Context.h"
#include "core/time/Time.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {
namespace {

constexpr unsigned momentMilliseconds = 8000;

struct Look {
    const wchar_t* label;
    const wchar_t* otherLabel; ///< Of the other state; null for none.
    const char* style;
};

/// In the order of the enumeration.
constexpr Look looks[] = {{L"Airspaces", nullptr, "stdNormal"}, {L"-", nullptr, "stdNormal"},
                          {L"Center", nullptr, "stdNormal"},    {L"+", nullptr, "stdNormal"},
                          {L"->", L"<-", "stdNormal"},          {L"<-->", L"-> <-", "stdNormal"}};

} // namespace

SideViewButtons::SideViewButtons(Context* context) : context_(context) {
    irr::gui::IGUIEnvironment* environment = context->getIrrlichtDevice()->getGUIEnvironment();
    for (size_t i = 0; i < buttons_.size(); ++i)
        buttons_[i] =
            EngineRef<irr::gui::IGUIButton>::share(addHiddenButton(environment, looks[i].label, looks[i].style));
}

SideViewButtons::~SideViewButtons() {
    for (auto& button : buttons_)
        removeWindow(button.get());
}

bool SideViewButtons::isWanted(SideButton::Kind button, bool all, const State& state) const {
    return button == SideButton::Airspaces ? state.offersAirspaces : all;
}

void SideViewButtons::show(const irr::core::rect<int>& panel, const State& state) {
    const SideButtonPlaces places =
        placeSideButtons(panel, context_->getScreenMetrics().buttonWidth, context_->getScreenMetrics().buttonHeight);
    if (wasTouched_ && TimeDiff(MilliSecs(), touchMilliseconds_) > momentMilliseconds)
        wasTouched_ = false;
    const bool all = places.mayStay || wasTouched_;
    if (isShown_ && panel == panel_ && state == state_ && all == showsAll_)
        return;
    isShown_ = true;
    panel_ = panel;
    state_ = state;
    showsAll_ = all;
    for (int i = 0; i < SideButton::Count; ++i) {
        irr::gui::IGUIButton* button = buttons_[static_cast<size_t>(i)].get();
        const bool isAlone = i == SideButton::Airspaces && !all;
        button->setRelativePosition(isAlone ? places.alone : places.buttons[static_cast<size_t>(i)]);
        button->setVisible(isWanted(static_cast<SideButton::Kind>(i), all, state));
    }
    const auto say = [this](SideButton::Kind button, bool other) {
        showText(buttons_[button].get(), other ? looks[button].otherLabel : looks[button].label);
    };
    say(SideButton::Ahead, state.isAhead);
    say(SideButton::FullScreen, state.isFullScreen);
}

void SideViewButtons::hide() {
    if (!isShown_)
        return;
    isShown_ = false;
    for (auto& button : buttons_)
        button->setVisible(false);
}

void SideViewButtons::touch() {
    wasTouched_ = true;
    touchMilliseconds_ = MilliSecs();
}

SideButton::Kind SideViewButtons::findClicked(const irr::SEvent& event) const {
    for (int i = 0; i < SideButton::Count; ++i)
        if (isClickOf(event, buttons_[static_cast<size_t>(i)].get()))
            return static_cast<SideButton::Kind>(i);
    return SideButton::Count;
}

irr::core::rect<int> SideViewButtons::getShownRect() const {
    irr::core::rect<int> around(0, 0, 0, 0);
    for (const auto& button : buttons_) {
        if (!button->isVisible())
            continue;
        const irr::core::rect<int> place = button->getAbsolutePosition();
        if (around.getArea() == 0)
            around = place;
        around.addInternalPoint(place.UpperLeftCorner);
        around.addInternalPoint(place.LowerRightCorner);
    }
    return around;
}

} // namespace skyvane
