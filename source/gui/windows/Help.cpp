#include "gui/windows/Help.h"

#include "core/Context.h"
#include "displays/PanelManager.h"
#include "gui/hypertext/ManualWindow.h"

#include <irrlicht.h>

namespace skyvane {

bool isHelpAvailable(Context* context, const char* page) {
    return ManualWindow::hasPage(context, page);
}

void prepareHelpButton(Context* context, irr::gui::IGUIElement* button, const char* page) {
    if (button)
        button->setEnabled(isHelpAvailable(context, page));
}

void showHelp(Context* context, const char* page) {
    if (!isHelpAvailable(context, page))
        return;
    context->getPanelManager()->setManualVisible(page);
    context->getPanelManager()->blockForManualExit();
}

} // namespace skyvane
