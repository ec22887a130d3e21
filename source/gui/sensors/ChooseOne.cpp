#include "gui/sensors/ChooseOne.h"

#include "core/Context.h"
#include "core/ModalLoop.h"
#include "gui/windows/BackButton.h"
#include "gui/windows/ChooseFromListDialog.h"
#include "gui/windows/WindowTools.h"

namespace skyvane {

int chooseOne(Context& context, const std::vector<std::wstring>& labels, const std::wstring& title) {
    std::vector<irr::gui::IGUIButton*> buttons;
    irr::gui::IGUIWindow* window = createChooseFromListDialog(context.getIrrlichtDevice(), buttons, {}, labels, title);
    const BackButton back(context.getEvents(), buttons.empty() ? nullptr : buttons.back());
    int chosen = -1;
    ModalLoop loop(*context.getFrames(), {[&](const irr::SEvent& event) {
        for (size_t i = 0; i < buttons.size(); ++i)
            if (isClickOf(event, buttons[i]))
                chosen = static_cast<int>(i);
    }});
    loop.run([&chosen] { return chosen < 0; });
    removeWindow(window);
    return chosen;
}

} // namespace skyvane
