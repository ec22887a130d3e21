#pragma once

#include "displays/instruments/DialFactory.h"
#include "displays/instruments/GMeter.h"

namespace skyvane {

class GMeterFactory : public DialFactory {
public:
    explicit GMeterFactory(Context* context) : DialFactory(context, "G-Meter", "media/acc_preview.png") {}
    std::unique_ptr<IPanel> Create() override { return make<GMeter>(); }
};

} // namespace skyvane
