#pragma once

#include "sensors/profiles/SensorProfile.h"

namespace skyvane {

/// A Bluetooth receiver, with attitude from the device's own sensors or without.
class ExtGPSConfig : public SensorProfile {
public:
    explicit ExtGPSConfig(const ProfileParts& parts) : SensorProfile(parts) {}
    std::wstring getName() override;
    std::wstring getDescription() override;
    bool OnConfigChosen(IniFile* ini) override;
};

} // namespace skyvane
