#include "gui/windows/ChooseFromListDialog.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;

} // namespace

irr::gui::IGUIWindow* createChooseFromListDialog(irr::IrrlichtDevice* device,
                                                 std::vector<irr::gui::IGUIButton*>& buttons,
                                                 const std::vector<int>& ids, const std::vector<std::wstring>& labels,
                                                 const std::wstring& title) {
    irr::gui::IGUIEnvironment* environment = device->getGUIEnvironment();
    irr::gui::IGUISkin* skin = environment->getSkin();
    irr::gui::IGUIFont* font = skin->getFont();
    const Rect screen = environment->getRootGUIElement()->getAbsolutePosition();
    int textWidth = static_cast<int>(font->getDimension(title.c_str()).Width);
    for (const std::wstring& label : labels)
        textWidth = std::max(textWidth, static_cast<int>(font->getDimension(label.c_str()).Width));
    const int textHeight = std::max(static_cast<int>(font->getDimension(L"Ag").Height), 1);
    const int rows = static_cast<int>(labels.size()) + 1;
    const int rowHeight = std::clamp(textHeight * 12 / 10, 1, std::max(screen.getHeight() / rows, 1));
    const int width = std::min(textWidth + 4 * textHeight, screen.getWidth());
    const irr::core::position2di corner = screen.getCenter() - irr::core::position2di(width / 2, rows * rowHeight / 2);
    irr::gui::IGUIWindow* window =
        environment->addWindow(Rect(corner, irr::core::dimension2di(width, rows * rowHeight)), true);
    window->getCloseButton()->setVisible(false);
    window->setDraggable(false);
    window->setDrawTitlebar(false);
    environment->addStaticText(title.c_str(), Rect(0, 0, width, rowHeight), false, false, window)
        ->setTextAlignment(irr::gui::EGUIA_CENTER, irr::gui::EGUIA_CENTER);
    buttons.clear();
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const int top = static_cast<int>(i + 1) * rowHeight;
        buttons.push_back(environment->addButton(Rect(0, top, width, top + rowHeight), window,
                                                 i < ids.size() ? ids[i] : -1, labels[i].c_str()));
    }
    return window;
}

} // namespace skyvane
