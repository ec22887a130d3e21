#pragma once

#include <irrlicht.h>
#include <string>

namespace skyvane {

/// The parts of a dialog that asks for one text.
struct InputDialog {
    irr::gui::IGUIWindow* window;
    irr::gui::IGUIEditBox* edit;
    irr::gui::IGUIButton* cancel;
    irr::gui::IGUIButton* ok;
};

/// A modal window of 0.75 of the screen's width and half its height, with a text, an edit box and "Cancel" and "Ok". It
/// belongs to the GUI; the caller waits for the clicks and removes it. Below a parent the window isn't modal by itself.
/// Main thread only.
InputDialog addInputDialog(irr::gui::IGUIEnvironment* environment, const std::wstring& title, const std::wstring& text,
                           const std::wstring& standard, irr::gui::IGUIElement* parent = nullptr);

} // namespace skyvane
