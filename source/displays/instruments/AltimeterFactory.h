#pragma once

#include "displays/instruments/Altimeter.h"
#include "displays/instruments/DialFactory.h"

namespace skyvane {

class AltimeterFactory : public DialFactory {
public:
    explicit AltimeterFactory(Context* context) : DialFactory(context, "Altimeter", "media/alt_preview.png") {}
    std::unique_ptr<IPanel> Create() override { return make<Altimeter>(); }
};

} // namespace skyvane
