#pragma once

#include "displays/instruments/DialFactory.h"
#include "displays/instruments/VerticalSpeedIndicator.h"

namespace skyvane {

class VerticalSpeedIndicatorFactory : public DialFactory {
public:
    explicit VerticalSpeedIndicatorFactory(Context* context)
        : DialFactory(context, "VerticalSpeedIndicator", "media/vsi_preview.png") {}
    std::unique_ptr<IPanel> Create() override { return make<VerticalSpeedIndicator>(); }
};

} // namespace skyvane
