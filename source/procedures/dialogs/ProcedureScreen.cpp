#include "procedures/dialogs/ProcedureScreen.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "core/events/EventReceiver.h"
#include "core/text/StrictNumber.h"
#include "core/text/Utf8.h"
#include "gui/skin/Skin.h"
#include "gui/windows/Help.h"
#include "gui/windows/LayoutDocuments.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {

ProcedureScreen::ProcedureScreen(Context& context, const Form& form)
    : context_(context), form_(form), focus_(context.getIrrlichtDevice()->getGUIEnvironment()),
      glass_(context.getIrrlichtDevice()->getGUIEnvironment()), pause_(*context.getPanelManager()),
      backBefore_(context.getEvents()->getBackButton()) {
    irr::gui::IGUIEnvironment* environment = context.getIrrlichtDevice()->getGUIEnvironment();
    IniFile document = readLayout(context.isPortrait() ? form.portrait : form.landscape);
    window_ = EngineRef<irr::gui::IGUIWindow>::share(addWindowForRatio(
        environment, &document, environment->getRootGUIElement()->getAbsolutePosition(), true, nullptr, -1));
    gui_ = std::make_unique<GUI>(environment, &document, windowArea(window_.get()), window_.get(), false);
    Skin::setButtonStyle(element(form.back), "redNormal");
    Skin::setButtonStyle(element(form.next), "greenNormal");
    prepareHelpButton(&context, element(form.help), form.helpPage);
    environment->setFocus(window_.get());
}

ProcedureScreen::~ProcedureScreen() {
    context_.getPanelManager()->setAttitudeIndicatorOverlay(false, nullptr);
    context_.getPanelManager()->setCompassOverlay(false, nullptr);
    context_.getEvents()->setBackButton(backBefore_);
    removeWindow(window_.get());
    glass_.reset();
    focus_.restore();
}

void ProcedureScreen::takeGlass() {
    const irr::core::position2di corner = window_->getAbsolutePosition().UpperLeftCorner;
    const irr::core::rect<int> attitude = gui_->getSpecialRectangle(form_.attitude) + corner;
    const irr::core::rect<int> compass = gui_->getSpecialRectangle(form_.compass) + corner;
    context_.getPanelManager()->setAttitudeIndicatorOverlay(true, &attitude);
    context_.getPanelManager()->setCompassOverlay(true, &compass);
    context_.getEvents()->setBackButton(element(form_.back));
}

bool ProcedureScreen::run() {
    takeGlass();
    ModalLoop loop(*context_.getFrames(),
                   {[this](const irr::SEvent& event) { processEvent(event); }, ModalFrame::Backdrop::Grey});
    loop.run([this] { return state_ == State::Open; });
    return state_ == State::Finished;
}

void ProcedureScreen::processEvent(const irr::SEvent& event) {
    if (event.EventType != irr::EET_GUI_EVENT || state_ != State::Open)
        return;
    gui_->Update(event.GUIEvent);
    if (event.GUIEvent.EventType == irr::gui::EGET_EDITBOX_ENTER) // takes the keys from the screen
        context_.getIrrlichtDevice()->getGUIEnvironment()->setFocus(window_.get());
    if (isClickOf(event, element(form_.back)))
        state_ = State::Left;
    else if (isClickOf(event, element(form_.help)))
        showHelp(&context_, form_.helpPage);
    else if (!isClickOf(event, element(form_.next)))
        onEvent(event);
    else if (onNext() && state_ == State::Open)
        finish();
}

void ProcedureScreen::colorText(irr::gui::IGUIElement* text, uint32_t argb) {
    static_cast<irr::gui::IGUIStaticText*>(text)->setOverrideColor(irr::video::SColor(argb));
}

bool ProcedureScreen::isChecked(const char* id) const {
    const auto* box = gui_->get<irr::gui::IGUICheckBox>(id);
    return box && box->isChecked();
}

bool ProcedureScreen::isEntry(const irr::SEvent& event) {
    switch (event.GUIEvent.EventType) {
    case irr::gui::EGET_EDITBOX_CHANGED:
    case irr::gui::EGET_CHECKBOX_CHANGED:
    case irr::gui::EGET_LISTBOX_CHANGED:
    case irr::gui::EGET_LISTBOX_SELECTED_AGAIN:
        return true;
    default:
        return false;
    }
}

std::optional<double> ProcedureScreen::numberIn(const char* id) const {
    double value = 0.0;
    if (!parseStrictNumber(encodeUtf8(element(id)->getText()), value))
        return std::nullopt;
    return value;
}

} // namespace skyvane
