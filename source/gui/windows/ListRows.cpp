#include "gui/windows/ListRows.h"

#include "core/text/Utf8.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {
namespace {

constexpr int rowMargin = 12; ///< Of a text in a row, both sides.

} // namespace

void fillList(irr::gui::IGUIListBox* list, irr::gui::IGUISkin& skin, const std::vector<std::wstring>& rows) {
    const irr::core::rect<irr::s32> place = list->getAbsolutePosition();
    const bool scrolls = static_cast<int>(rows.size()) * skin.getSize(irr::gui::EGDS_BUTTON_HEIGHT) > place.getHeight();
    const int room = place.getWidth() - (scrolls ? skin.getSize(irr::gui::EGDS_SCROLLBAR_SIZE) : 0) - rowMargin;
    list->clear(); // which selects none; the engine's own way to select none scrolls to the end
    for (const std::wstring& row : rows)
        list->addItem(fitText(skin.getFont(), row, room).c_str());
}

void fillChoice(irr::gui::IGUIComboBox* box, irr::gui::IGUISkin& skin, const std::vector<std::wstring>& rows) {
    const int room = box->getAbsolutePosition().getWidth() - skin.getSize(irr::gui::EGDS_SCROLLBAR_SIZE) - rowMargin;
    box->clear();
    for (const std::wstring& row : rows)
        box->addItem(fitText(skin.getFont(), row, room).c_str());
}

std::vector<std::wstring> decodeRows(const std::vector<std::string>& rows) {
    std::vector<std::wstring> texts;
    for (const std::string& row : rows)
        texts.push_back(decodeUtf8(row));
    return texts;
}

} // namespace skyvane
