#include "sensors/profiles/CustomConfig.h"

#include "sensors/ISensorDialogs.h"

namespace skyvane {

std::wstring CustomConfig::getDescription() {
    return L"Select the \"Custom\" configuration in case you need a more sophisticated sensor configuration, e.g. "
           L"combinations of multiple sensor data sources, etc..).";
}

bool CustomConfig::OnConfigChosen(IniFile* ini) {
    return dialogs_->selectSensors(*ini);
}

} // namespace skyvane
