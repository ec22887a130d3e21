#pragma once

#include <irrlicht.h>
#include <string>
#include <vector>

namespace skyvane {

/// The engine cuts a row that is too long for its list anywhere in a letter. Here it ends in dots.

/// The rows of the list, in place of what it held; none is selected. Rows are as high as the skin's buttons.
void fillList(irr::gui::IGUIListBox* list, irr::gui::IGUISkin& skin, const std::vector<std::wstring>& rows);
/// The same for the choices of a box that has its place; none is selected.
void fillChoice(irr::gui::IGUIComboBox* box, irr::gui::IGUISkin& skin, const std::vector<std::wstring>& rows);
/// For rows in UTF-8.
std::vector<std::wstring> decodeRows(const std::vector<std::string>& rows);

} // namespace skyvane
