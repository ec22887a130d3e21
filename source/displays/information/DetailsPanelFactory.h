#pragma once

#include "displays/information/DetailsPanel.h"
#include "displays/instruments/DialFactory.h"

namespace skyvane {

class DetailsPanelFactory : public DialFactory {
public:
    explicit DetailsPanelFactory(Context* context) : DialFactory(context, "Details", "media/detailsPreview.png") {}
    std::unique_ptr<IPanel> Create() override { return make<DetailsPanel>(); }

protected:
    irr::core::rect<int> previewRect(const irr::core::rect<int>& rect) const override { return rect; }
};

} // namespace skyvane
