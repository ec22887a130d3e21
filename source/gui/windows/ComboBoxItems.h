#pragma once

namespace irr {
namespace gui {
class IGUIComboBox;
}
} // namespace irr

namespace skyvane {

/// Gives the rows of the list that the box opens a height that a finger hits; the engine makes them as high as their
/// text. The list stays on the screen, below the box or above it, whichever has more room. Calling it again changes the
/// height. Main thread only.
void SetComboBoxItemHeight(irr::gui::IGUIComboBox* box, int pixels);

} // namespace skyvane
