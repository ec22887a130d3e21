#pragma once

#include <irrlicht.h>
#include <string>
#include <vector>

namespace skyvane {

/// A modal window with one button per label, for the caller's event loop: the buttons come back in `buttons`, with the
/// ids of `ids`, or -1 where those end. As wide as the longest label and four heights of text, in rows that a finger
/// hits; what the screen has no room for is scrolled. The window belongs to the GUI, and the caller removes it. Main
/// thread only.
irr::gui::IGUIWindow* createChooseFromListDialog(irr::IrrlichtDevice* device,
                                                 std::vector<irr::gui::IGUIButton*>& buttons,
                                                 const std::vector<int>& ids, const std::vector<std::wstring>& labels,
                                                 const std::wstring& title);

} // namespace skyvane
