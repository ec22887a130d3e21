#pragma once

#include "displays/instruments/DialFactory.h"
#include "displays/instruments/OptionSchemas.h"
#include "displays/instruments/WarningLamp.h"

#include <map>

namespace skyvane {

class WarningLampFactory : public DialFactory {
public:
    explicit WarningLampFactory(Context* context)
        : DialFactory(context, "WarningLamp", "", warningLampOptions, "ValueFields.hti") {}
    void loadSetupFromIni(IniFile* ini, std::string section) override;
    std::unique_ptr<IPanel> Create() override { return make<WarningLamp>(type_); }
    void renderPreview(irr::core::rect<int> rect) override;

private:
    WarningType type_ = WarningType::DEFAULTSENSORS;
    std::map<WarningType, LampView> previews_; ///< Made when first asked for.
};

} // namespace skyvane
