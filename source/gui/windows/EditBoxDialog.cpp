#include "gui/windows/EditBoxDialog.h"

#include "gui/windows/WindowTools.h"

namespace skyvane {
namespace {

/// As behind a message box.
const irr::video::SColor dimming(0x40000000);
constexpr int numberId = -2; // by which the keys on the screen are chosen

irr::gui::IGUIElement* rootOf(irr::IrrlichtDevice* device) {
    return device->getGUIEnvironment()->getRootGUIElement();
}

} // namespace

EditBoxDialog::EditBoxDialog(IEditBoxDialogCallback* callback, irr::IrrlichtDevice* device, const std::wstring& title,
                             const std::wstring& text, const std::wstring& standard, const Options& options)
    : IGUIElement(irr::gui::EGUIET_MODAL_SCREEN, device->getGUIEnvironment(), rootOf(device), -1,
                  rootOf(device)->getAbsolutePosition()),
      callback_(callback), options_(options), formerFocus_(Environment),
      dialog_(addInputDialog(Environment, title, text, standard, this)) {
    dialog_.edit->setPasswordBox(options_.isPassword, options_.passwordCharacter);
    if (options_.isNumber)
        dialog_.edit->setID(numberId);
    if (!options_.hint.empty())
        addHint();
}

/// Between the edit box and the buttons.
void EditBoxDialog::addHint() {
    const irr::core::position2di corner = dialog_.window->getAbsolutePosition().UpperLeftCorner;
    const irr::core::recti edit = dialog_.edit->getAbsolutePosition() - corner;
    const irr::core::recti buttons = dialog_.ok->getAbsolutePosition() - corner;
    Environment
        ->addStaticText(
            options_.hint.c_str(),
            {edit.UpperLeftCorner.X, edit.LowerRightCorner.Y, edit.LowerRightCorner.X, buttons.UpperLeftCorner.Y},
            false, true, dialog_.window)
        ->setTextAlignment(irr::gui::EGUIA_CENTER, irr::gui::EGUIA_CENTER);
}

void EditBoxDialog::draw() {
    if (!isVisible())
        return;
    Environment->getSkin()->draw2DRectangle(this, dimming, AbsoluteRect, &AbsoluteClippingRect);
    IGUIElement::draw();
}

bool EditBoxDialog::OnEvent(const irr::SEvent& event) {
    if (event.EventType == irr::EET_MOUSE_INPUT_EVENT)
        return true;
    const bool isEnter = event.EventType == irr::EET_GUI_EVENT && event.GUIEvent.Caller == dialog_.edit &&
                         event.GUIEvent.EventType == irr::gui::EGET_EDITBOX_ENTER;
    if (isClickOf(event, dialog_.ok) || isEnter) {
        answer(true);
        return true;
    }
    if (isClickOf(event, dialog_.cancel)) {
        answer(false);
        return true;
    }
    return IGUIElement::OnEvent(event);
}

void EditBoxDialog::answer(bool accepted) {
    const std::wstring text = dialog_.edit->getText();
    if (answered_)
        return;
    if (accepted && text.empty() && !options_.allowEmpty) {
        Environment->setFocus(dialog_.edit);
        return;
    }
    answered_ = true;
    grab();
    if (callback_)
        callback_->OnResult(this, text.c_str(), accepted);
    removeWindow(this);
    formerFocus_.restore();
    drop();
}

} // namespace skyvane
