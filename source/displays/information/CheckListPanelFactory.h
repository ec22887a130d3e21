#pragma once

#include "displays/information/CheckListPanel.h"
#include "displays/instruments/DialFactory.h"

namespace skyvane {

class CheckListPanelFactory : public DialFactory {
public:
    explicit CheckListPanelFactory(Context* context)
        : DialFactory(context, "CheckListPanel", "media/checkPreview.png") {}
    std::unique_ptr<IPanel> Create() override { return make<CheckListPanel>(); }

protected:
    irr::core::rect<int> previewRect(const irr::core::rect<int>& rect) const override { return rect; }
};

} // namespace skyvane
