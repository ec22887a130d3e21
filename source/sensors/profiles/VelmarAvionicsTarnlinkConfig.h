#pragma once

#include "sensors/profiles/SensorProfile.h"

namespace skyvane {

/// The external unit, which estimates by itself. There is no client for it yet, so it is never chosen.
class VelmarAvionicsTarnlinkConfig : public SensorProfile {
public:
    explicit VelmarAvionicsTarnlinkConfig(const ProfileParts& parts) : SensorProfile(parts) {}
    std::wstring getName() override;
    std::wstring getDescription() override;
    bool OnConfigChosen(IniFile* ini) override;
    std::wstring getObstacle() override;
    std::string getWebsiteURL() override { return "https://www.velmar-avionics.example/tarnlink"; }
    bool isApplicableWebsiteURL() override { return true; }
};

} // namespace skyvane
