#include "gui/windows/ChooseFromListDialog.h"

#include "gui/elements/AggregatableGUIElementAdapter.h"
#include "gui/elements/AggregateGUIElement.h"
#include "gui/elements/ScrollBar.h"

#include <algorithm>

namespace skyvane {
namespace {

using Rect = irr::core::rect<irr::s32>;

int widestText(irr::gui::IGUIFont* font, const std::vector<std::wstring>& labels, const std::wstring& title) {
    irr::u32 width = font->getDimension(title.c_str()).Width;
    for (const std::wstring& label : labels)
        width = std::max(width, font->getDimension(label.c_str()).Width);
    return static_cast<int>(width);
}

irr::gui::IGUIWindow* addPlainWindow(irr::gui::IGUIEnvironment* environment, const Rect& place) {
    irr::gui::IGUIWindow* window = environment->addWindow(place, true);
    window->getCloseButton()->setVisible(false);
    window->setDraggable(false);
    window->setDrawTitlebar(false);
    return window;
}

/// The buttons one below the other, scrolled where they need more than the place.
void addRows(irr::gui::IGUIEnvironment* environment, const std::vector<irr::gui::IGUIButton*>& buttons, int rowHeight,
             const Rect& place, irr::gui::IGUIWindow* window) {
    const float share = static_cast<float>(rowHeight) / static_cast<float>(std::max(place.getHeight(), 1));
    AggregateGUIElement::Options options;
    options.scrollable = static_cast<int>(buttons.size()) * rowHeight > place.getHeight();
    AggregateGUIElement::Elements rows;
    for (irr::gui::IGUIButton* button : buttons)
        rows.push_back(new AggregatableGUIElementAdapter(environment, button, LayoutWish{share}));
    Rect listPlace = place;
    if (options.scrollable)
        listPlace.LowerRightCorner.X -= environment->getSkin()->getSize(irr::gui::EGDS_SCROLLBAR_SIZE);
    auto* list = new AggregateGUIElement(environment, options, rows, {}, window, listPlace);
    list->drop();
    if (!options.scrollable)
        return;
    auto* bar = new ScrollBar(
        environment, 1.0f, false, -1, nullptr, LayoutWish(), window,
        {listPlace.LowerRightCorner.X, place.UpperLeftCorner.Y, place.LowerRightCorner.X, place.LowerRightCorner.Y});
    bar->linkToScrollable(list);
    bar->drop();
}

} // namespace

irr::gui::IGUIWindow* createChooseFromListDialog(irr::IrrlichtDevice* device,
                                                 std::vector<irr::gui::IGUIButton*>& buttons,
                                                 const std::vector<int>& ids, const std::vector<std::wstring>& labels,
                                                 const std::wstring& title) {
    irr::gui::IGUIEnvironment* environment = device->getGUIEnvironment();
    irr::gui::IGUISkin* skin = environment->getSkin();
    irr::gui::IGUIFont* font = skin->getFont();
    const Rect screen = environment->getRootGUIElement()->getAbsolutePosition();
    const int textHeight = std::max(static_cast<int>(font->getDimension(L"Ag").Height), 1);
    const int rowHeight = std::max({textHeight * 12 / 10, skin->getSize(irr::gui::EGDS_BUTTON_HEIGHT) * 11 / 10, 1});
    const int gap = textHeight / 3;
    const int rows = static_cast<int>(std::min<std::size_t>(labels.size(), 10000)) + 1;
    const int height = std::min(rows * rowHeight + 2 * gap, screen.getHeight());
    const int bar = height < rows * rowHeight ? skin->getSize(irr::gui::EGDS_SCROLLBAR_SIZE) : 0;
    const int width = std::min(widestText(font, labels, title) + 4 * textHeight + bar, screen.getWidth());
    const irr::core::position2di corner = screen.getCenter() - irr::core::position2di(width / 2, height / 2);
    irr::gui::IGUIWindow* window = addPlainWindow(environment, Rect(corner, irr::core::dimension2di(width, height)));
    environment->addStaticText(title.c_str(), Rect(0, gap, width, gap + rowHeight), false, false, window)
        ->setTextAlignment(irr::gui::EGUIA_CENTER, irr::gui::EGUIA_CENTER);
    buttons.clear();
    for (std::size_t i = 0; i < labels.size(); ++i)
        buttons.push_back(
            environment->addButton(Rect(0, 0, 1, 1), nullptr, i < ids.size() ? ids[i] : -1, labels[i].c_str()));
    addRows(environment, buttons, rowHeight, Rect(gap, gap + rowHeight, width - gap, height - gap), window);
    return window;
}

} // namespace skyvane
