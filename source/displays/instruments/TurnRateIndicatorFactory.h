#pragma once

#include "displays/instruments/DialFactory.h"
#include "displays/instruments/OptionSchemas.h"
#include "displays/instruments/TurnRateIndicator.h"

namespace skyvane {

class TurnRateIndicatorFactory : public DialFactory {
public:
    explicit TurnRateIndicatorFactory(Context* context)
        : DialFactory(context, "TurnCoordinator", "media/turn_preview.png", turnRateIndicatorOptions, "Dials.hti") {}
    void loadSetupFromIni(IniFile* ini, std::string section) override;
    std::unique_ptr<IPanel> Create() override { return make<TurnRateIndicator>(drawText_); }

private:
    bool drawText_ = true;
};

} // namespace skyvane
