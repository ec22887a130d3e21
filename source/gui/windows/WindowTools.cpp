#include "gui/windows/WindowTools.h"

#include "gui/layoutmath/ShortText.h"
#include "gui/skin/Skin.h"

#include <cwchar>

namespace skyvane {

irr::gui::IGUIButton* addHiddenButton(irr::gui::IGUIEnvironment* environment, const wchar_t* label, const char* style) {
    irr::gui::IGUIButton* button = environment->addButton(irr::core::rect<int>(0, 0, 1, 1), nullptr, -1, label);
    Skin::setButtonStyle(button, style);
    button->setVisible(false);
    return button;
}

void removeWindow(irr::gui::IGUIElement* window) {
    if (!window)
        return;
    window->setVisible(false);
    window->remove();
}

void showText(irr::gui::IGUIElement* element, const wchar_t* text) {
    if (std::wcscmp(element->getText(), text) != 0)
        element->setText(text);
}

std::wstring fitText(irr::gui::IGUIFont* font, const std::wstring& text, int width) {
    const auto fits = [&](const std::wstring& shown) {
        return static_cast<int>(font->getDimension(shown.c_str()).Width) <= width;
    };
    return font ? keepBegin(text, fits) : text;
}

bool isClickOf(const irr::SEvent& event, const irr::gui::IGUIElement* button) {
    return button && event.EventType == irr::EET_GUI_EVENT &&
           event.GUIEvent.EventType == irr::gui::EGET_BUTTON_CLICKED && event.GUIEvent.Caller == button;
}

} // namespace skyvane
