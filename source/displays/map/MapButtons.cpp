#include "displays/map/MapButtons.h"

#include "core/Context.h"
#include "gui/skin/Skin.h"
#include "gui/windows/Help.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>

namespace skyvane {
namespace {

struct Look {
    const wchar_t* label;
    const char* style;
};

/// In the order of the enumeration, from above.
constexpr Look looks[] = {
    {L"+", "greyVis"},      {L"-", "greyVis"},      {L"Info", "blueVis"},     {L"     Create", "direct2Normal"},
    {L"Center", "blueVis"}, {L"Next", "yellowVis"}, {L"Options", "brownVis"}, {L"Help", "greyVis"}};
/// Of the usual width: a picture or a lamp stands beside the words.
constexpr float widthShare = 1.15f;
constexpr const char* procedureStyle = "proc2Normal";
constexpr const char* directStyle = "direct2Normal";

} // namespace

MapButtons::MapButtons(Context* context) : context_(context) {
    irr::gui::IGUIEnvironment* environment = context->getIrrlichtDevice()->getGUIEnvironment();
    for (size_t i = 0; i < buttons_.size(); ++i)
        buttons_[i] =
            EngineRef<irr::gui::IGUIButton>::share(addHiddenButton(environment, looks[i].label, looks[i].style));
    prepareHelpButton(context, buttons_[Help].get(), "Map2D.hti");
}

MapButtons::~MapButtons() {
    for (auto& button : buttons_)
        removeWindow(button.get());
}

void MapButtons::show(const irr::core::rect<int>& panel, const State& state) {
    if (isShown_ && panel == panel_ && state.hasSeveral == hasSeveral_ && state.areProceduresPossible == hasProcedures_)
        return;
    if (state.areProceduresPossible != hasProcedures_ || !isShown_)
        Skin::setButtonStyle(buttons_[Create].get(), state.areProceduresPossible ? procedureStyle : directStyle);
    panel_ = panel;
    hasSeveral_ = state.hasSeveral;
    hasProcedures_ = state.areProceduresPossible;
    isShown_ = true;
    place(panel, state);
}

/// One below the other; the two of the zoom share a row, and what is not needed leaves its row free.
void MapButtons::place(const irr::core::rect<int>& panel, const State& state) {
    const ScreenMetrics& metrics = context_->getScreenMetrics();
    const int gap = std::max(2, metrics.buttonHeight / 8);
    constexpr int rows = static_cast<int>(Count) - 1;
    const int height = std::min(metrics.buttonHeight, (panel.getHeight() - gap) / rows - gap);
    const int width =
        std::min(static_cast<int>(widthShare * static_cast<float>(metrics.buttonWidth)), panel.getWidth() - 2 * gap);
    const int left = panel.LowerRightCorner.X - width - gap;
    int top = panel.LowerRightCorner.Y - rows * (height + gap);
    const int half = (width - gap) / 2;
    buttons_[ZoomIn]->setRelativePosition(irr::core::rect<int>(left, top, left + half, top + height));
    buttons_[ZoomOut]->setRelativePosition(irr::core::rect<int>(left + half + gap, top, left + width, top + height));
    for (int i = Info; i < Count; ++i) {
        top += height + gap;
        buttons_[static_cast<size_t>(i)]->setRelativePosition(
            irr::core::rect<int>(left, top, left + width, top + height));
    }
    for (int i = 0; i < Count; ++i)
        buttons_[static_cast<size_t>(i)]->setVisible(i != Next || state.hasSeveral);
}

void MapButtons::hide() {
    if (!isShown_)
        return;
    isShown_ = false;
    for (auto& button : buttons_)
        button->setVisible(false);
}

MapButtons::Button MapButtons::findClicked(const irr::SEvent& event) const {
    for (int i = 0; i < Count; ++i)
        if (isClickOf(event, buttons_[static_cast<size_t>(i)].get()))
            return static_cast<Button>(i);
    return None;
}

bool MapButtons::contains(const irr::core::vector2d<int>& screenPoint) const {
    return std::any_of(buttons_.begin(), buttons_.end(), [&screenPoint](const auto& button) {
        return button->isVisible() && button->isPointInside(screenPoint);
    });
}

} // namespace skyvane
