#pragma once

#include "displays/instruments/Compass.h"
#include "displays/instruments/DialFactory.h"

namespace skyvane {

class CompassFactory : public DialFactory {
public:
    explicit CompassFactory(Context* context) : DialFactory(context, "Compass", "media/comp_preview.png") {}
    std::unique_ptr<IPanel> Create() override { return make<Compass>(); }
};

} // namespace skyvane
