#include "gui/windows/InputDialog.h"

#include "gui/font/MakeWordWrappedText.h"
#include "gui/skin/Skin.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;
constexpr int plainStringId = -3;

} // namespace

InputDialog addInputDialog(irr::gui::IGUIEnvironment* environment, const std::wstring& title, const std::wstring& text,
                           const std::wstring& standard, irr::gui::IGUIElement* parent) {
    const Rect screen = environment->getRootGUIElement()->getAbsolutePosition();
    const int w = screen.getWidth() * 3 / 4;
    const int h = screen.getHeight() / 2;
    const int button = environment->getSkin()->getSize(irr::gui::EGDS_BUTTON_HEIGHT);
    const int buttonWidth = environment->getSkin()->getSize(irr::gui::EGDS_BUTTON_WIDTH) * 5 / 4;
    InputDialog dialog{};
    dialog.window = environment->addWindow(
        Rect(screen.getCenter() - irr::core::position2di(w / 2, h / 2), irr::core::dimension2di(w, h)), !parent, L"",
        parent);
    dialog.window->getCloseButton()->setVisible(false);
    dialog.window->setDraggable(false);
    dialog.window->setDrawTitlebar(false);
    const auto addText = [&](const std::wstring& shown, int top, int bottom) {
        const Rect place(w / 20, top, w - w / 20, bottom);
        // Wrapped here: the element's own way leaves a long path whole, and cut on both sides.
        const std::wstring wrapped = makeWordWrappedText(shown, static_cast<unsigned>(std::max(place.getWidth(), 1)),
                                                         environment->getSkin()->getFont(), false);
        environment->addStaticText(wrapped.c_str(), place, false, false, dialog.window)
            ->setTextAlignment(irr::gui::EGUIA_CENTER, irr::gui::EGUIA_CENTER);
    };
    addText(title, h / 20, h / 5);
    addText(text, h / 5, h * 9 / 20);
    dialog.edit =
        environment->addEditBox(standard.c_str(), Rect(w / 10, h / 2 - button / 2, w - w / 10, h / 2 + button), true,
                                dialog.window, plainStringId);
    const int bottom = h - button / 2;
    const int left = w * 45 / 100;
    const int right = w * 55 / 100;
    dialog.cancel =
        environment->addButton(Rect(left - buttonWidth, bottom - button, left, bottom), dialog.window, -1, L"Cancel");
    dialog.ok =
        environment->addButton(Rect(right, bottom - button, right + buttonWidth, bottom), dialog.window, -1, L"Ok");
    Skin::setButtonStyle(dialog.cancel, "redNormal");
    Skin::setButtonStyle(dialog.ok, "greenNormal");
    if (parent)
        environment->setFocus(parent); // a modal window behind would take it back from the edit box
    environment->setFocus(dialog.edit);
    return dialog;
}

} // namespace skyvane
