#pragma once

#include "sensors/profiles/SensorProfile.h"

namespace skyvane {

/// The device's own sensors, with traffic and weather of a receiver that speaks GDL 90.
class GLD90WeatherTraffic : public SensorProfile {
public:
    explicit GLD90WeatherTraffic(const ProfileParts& parts) : SensorProfile(parts) {}
    std::wstring getName() override;
    std::wstring getDescription() override;
    bool OnConfigChosen(IniFile* ini) override;

protected:
    std::vector<std::string> neededFactories() const override;
};

} // namespace skyvane
