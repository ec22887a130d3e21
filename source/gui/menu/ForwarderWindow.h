#pragma once

#include "gui/menu/MenuWindow.h"

#include <vector>

namespace skyvane {

/// Shows which forwarders run, adds one of a kind and removes one. Main thread only.
class ForwarderWindow : public MenuWindow {
public:
    explicit ForwarderWindow(Context* context);

    void updateForwarderListBox();

protected:
    void onEvent(const irr::SEvent& event) override;

private:
    void add();
    void remove();
    irr::gui::IGUIListBox* list(const char* id) const { return static_cast<irr::gui::IGUIListBox*>(element(id)); }

    std::vector<int> factories_; ///< Places in the list of factories, in the order of the methods shown.
};

} // namespace skyvane
