#pragma once

#include "displays/instruments/DialFactory.h"
#include "displays/instruments/OptionSchemas.h"
#include "displays/instruments/SlipIndicator.h"

namespace skyvane {

class SlipIndicatorFactory : public DialFactory {
public:
    explicit SlipIndicatorFactory(Context* context)
        : DialFactory(context, "Slip/Skid Indicator", "media/slip_preview.png", slipIndicatorOptions,
                      "ValueFields.hti") {}
    void loadSetupFromIni(IniFile* ini, std::string section) override;
    std::unique_ptr<IPanel> Create() override { return make<SlipIndicator>(style_); }

protected:
    irr::core::rect<int> previewRect(const irr::core::rect<int>& rect) const override;

private:
    SlipStyle style_;
};

} // namespace skyvane
