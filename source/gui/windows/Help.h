#pragma once

namespace irr {
namespace gui {
class IGUIElement;
}
} // namespace irr

namespace skyvane {

class Context;

/// Every Help button opens its page of the manual through here: `page` is a file name like "GeneralSetup.hti". Main
/// thread only.

/// Whether the manual has the page, so that a button for it can be pressed.
bool isHelpAvailable(Context* context, const char* page);

/// Switches a Help button on where its page is there, off where not. Null as button does nothing.
void prepareHelpButton(Context* context, irr::gui::IGUIElement* button, const char* page);

/// Opens the page and comes back when the pilot has closed it. Without the page it comes back at once.
void showHelp(Context* context, const char* page);

} // namespace skyvane
