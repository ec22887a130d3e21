#pragma once

#include "sensors/ISensorFactory.h"

#include <array>

namespace skyvane {

/// The base of factories whose sensors have nothing to set up.
class NoSetupGUISensorFactory : public ISensorFactory {
public:
    NoSetupGUISensorFactory(std::string name, const std::vector<ISensorData::Type>& supportedTypes);

    void loadSetupFromIni(IniFile*, std::string) override {}
    bool setup(IniFile*, std::string) override { return true; }
    std::string getName() override { return name_; }
    std::vector<ISensorData::Type> getSupportedDataTypes() override;
    bool isDataTypeSupported(ISensorData::Type type) override;

private:
    std::string name_;
    std::array<bool, ISensorData::TypeCount> supported_{};
};

} // namespace skyvane
