#include "gui/windows/ProgressDialog.h"

#include "core/Context.h"
#include "core/events/EventReceiver.h"
#include "core/system/FramePacer.h"
#include "core/time/Time.h"
#include "gui/skin/Skin.h"
#include "gui/windows/GUI.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/WindowTools.h"

#include <algorithm>
#include <cmath>

namespace skyvane {

/// The trough and its filled part.
class ProgressDialog::Bar : public irr::gui::IGUIElement {
public:
    Bar(irr::gui::IGUIEnvironment* environment, irr::gui::IGUIElement* parent, const irr::core::rect<irr::s32>& rect)
        : IGUIElement(irr::gui::EGUIET_ELEMENT, environment, parent, -1, rect) {}
    void setShare(double share) { share_ = share; }

    void draw() override {
        irr::gui::IGUISkin* skin = Environment->getSkin();
        skin->draw3DSunkenPane(this, skin->getColor(irr::gui::EGDC_EDITABLE), true, true, AbsoluteRect,
                               &AbsoluteClippingRect);
        irr::core::rect<irr::s32> done(AbsoluteRect.UpperLeftCorner + irr::core::position2di(rim, rim),
                                       AbsoluteRect.LowerRightCorner - irr::core::position2di(rim, rim));
        done.LowerRightCorner.X = done.UpperLeftCorner.X + static_cast<irr::s32>(done.getWidth() * share_);
        skin->draw2DRectangle(this, skin->getColor(irr::gui::EGDC_HIGH_LIGHT), done, &AbsoluteClippingRect);
    }

private:
    static constexpr int rim = 3;
    double share_ = 0.0;
};

ProgressDialog::ProgressDialog(Context* context, const std::wstring& text, bool cancellable)
    : loop_(*context->getFrames(), {[this](const irr::SEvent& event) { onEvent(event); }}) {
    irr::gui::IGUIEnvironment* environment = context->getIrrlichtDevice()->getGUIEnvironment();
    IniFile document = readLayout(context->isPortrait() ? progressPortraitLayout : progressLandscapeLayout);
    const irr::core::rect<int> screen = environment->getRootGUIElement()->getAbsolutePosition();
    window_ = addWindowForRatio(environment, &document, screen, true, nullptr, -1);
    gui_ = std::make_unique<GUI>(environment, &document, windowArea(window_), window_, false);
    bar_ = new Bar(environment, window_, gui_->getSpecialRectangle("bar"));
    bar_->drop();
    irr::gui::IGUIElement* cancel = gui_->getElement("cancelButton");
    Skin::setButtonStyle(cancel, "redNormal");
    cancel->setVisible(cancellable);
    context->getEvents()->setBackButton(cancel);
    setText(text);
    closed_ = !loop_.step();
    lastFrameMilliseconds_ = MilliSecs();
}

ProgressDialog::~ProgressDialog() {
    gui_.reset();
    removeWindow(window_);
}

void ProgressDialog::setText(const std::wstring& text) {
    showText(gui_->getElement("text"), text.c_str());
}

void ProgressDialog::setProgress(double share) {
    bar_->setShare(std::isfinite(share) ? std::clamp(share, 0.0, 1.0) : 0.0);
}

void ProgressDialog::setState(const std::wstring& text) {
    showText(gui_->getElement("state"), text.c_str());
}

bool ProgressDialog::update() {
    if (!closed_ && TimeDiff(MilliSecs(), lastFrameMilliseconds_) >= FramePacer::FrameMilliseconds) {
        closed_ = !loop_.step();
        lastFrameMilliseconds_ = MilliSecs();
    }
    return !closed_ && !cancelled_;
}

void ProgressDialog::onEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT)
        return;
    gui_->Update(event.GUIEvent);
    cancelled_ = cancelled_ || isClickOf(event, gui_->getElement("cancelButton"));
}

} // namespace skyvane
