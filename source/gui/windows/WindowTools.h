#pragma once

#include <irrlicht.h>
#include <string>

namespace skyvane {

/// A button without a place, hidden: whoever shows it lays it out. The environment holds it.
irr::gui::IGUIButton* addHiddenButton(irr::gui::IGUIEnvironment* environment, const wchar_t* label, const char* style);

/// Takes a window, or any element, out of the GUI. Null does nothing.
void removeWindow(irr::gui::IGUIElement* window);

/// Sets the text when it is another one: what stays the same is laid out once.
void showText(irr::gui::IGUIElement* element, const wchar_t* text);

/// The text as far as it fits into that many pixels, its end replaced by dots where it doesn't.
std::wstring fitText(irr::gui::IGUIFont* font, const std::wstring& text, int width);

/// Whether this is the click of that button; never for null.
bool isClickOf(const irr::SEvent& event, const irr::gui::IGUIElement* button);

} // namespace skyvane
