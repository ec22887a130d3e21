#pragma once

#include "displays/instruments/AttitudeIndicator.h"
#include "displays/instruments/DialFactory.h"

namespace skyvane {

class AttitudeIndicatorFactory : public DialFactory {
public:
    explicit AttitudeIndicatorFactory(Context* context)
        : DialFactory(context, "AttitudeIndicator", "media/attitude_preview.png") {}
    std::unique_ptr<IPanel> Create() override { return make<AttitudeIndicator>(); }
};

} // namespace skyvane
