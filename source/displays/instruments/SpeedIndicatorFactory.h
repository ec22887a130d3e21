#pragma once

#include "displays/instruments/DialFactory.h"
#include "displays/instruments/SpeedIndicator.h"

namespace skyvane {

class SpeedIndicatorFactory : public DialFactory {
public:
    explicit SpeedIndicatorFactory(Context* context)
        : DialFactory(context, "Ground/AirSpeedIndicator", "media/speed_preview.png") {}
    std::unique_ptr<IPanel> Create() override { return make<SpeedIndicator>(); }
};

} // namespace skyvane
