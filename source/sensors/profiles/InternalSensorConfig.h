#pragma once

#include "sensors/profiles/SensorProfile.h"

namespace skyvane {

/// The device's own sensors, with attitude.
class InternalSensorConfig : public SensorProfile {
public:
    explicit InternalSensorConfig(const ProfileParts& parts) : SensorProfile(parts) {}
    std::wstring getName() override;
    std::wstring getDescription() override;
    bool OnConfigChosen(IniFile* ini) override;
};

} // namespace skyvane
