#pragma once

#include "sensors/profiles/SensorProfile.h"

namespace skyvane {

/// The device's own receiver, without attitude.
class InternalGNSSConfig : public SensorProfile {
public:
    explicit InternalGNSSConfig(const ProfileParts& parts) : SensorProfile(parts) {}
    std::wstring getName() override;
    std::wstring getDescription() override;
    bool OnConfigChosen(IniFile* ini) override;
};

} // namespace skyvane
