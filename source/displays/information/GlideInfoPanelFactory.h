#pragma once

#include "displays/information/InformationOptions.h"
#include "displays/instruments/SegmentFactory.h"

namespace skyvane {

class GlideInfoPanelFactory : public SegmentFactory {
public:
    explicit GlideInfoPanelFactory(Context* context)
        : SegmentFactory(context, "GlideInfoPanel", glideInfoPanelOptions, "GlideInfo.hti") {}
    std::unique_ptr<IPanel> Create() override;
    /// The panel with its labels and figures that nobody takes for values.
    void renderPreview(irr::core::rect<int> rect) override;
};

} // namespace skyvane
