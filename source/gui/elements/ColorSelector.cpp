#include "gui/elements/ColorSelector.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "gui/windows/BackButton.h"
#include "gui/windows/Help.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {

namespace {

const char* const helpPage = "Colors.hti";

} // namespace

ColorSelector::ColorSelector(Context* context, irr::video::SColor color) : context_(context), color_(color) {}

ColorSelector::~ColorSelector() = default;

void ColorSelector::select(bool withAlpha) {
    if (isVisible())
        return;
    success_ = false;
    answer_ = ColorWindow::Answer::None;
    window_ = std::make_unique<ColorWindow>(context_->getIrrlichtDevice()->getGUIEnvironment(), color_, withAlpha);
    prepareHelpButton(context_, window_->getHelpButton(), helpPage);
    const BackButton back(context_->getEvents(), window_->getCancelButton());
    ModalLoop loop(*context_->getFrames(), {[this](const irr::SEvent& event) { onEvent(event); }});
    loop.run([this] { return answer_ == ColorWindow::Answer::None; });
    success_ = answer_ == ColorWindow::Answer::Ok;
    if (success_)
        color_ = window_->getColor();
    window_.reset();
}

void ColorSelector::onEvent(const irr::SEvent& event) {
    if (answer_ == ColorWindow::Answer::None)
        answer_ = window_->processEvent(event);
    if (isClickOf(event, window_->getHelpButton()))
        showHelp(context_, helpPage);
}

} // namespace skyvane
