#pragma once

#include "sensors/profiles/SensorProfile.h"

namespace skyvane {

/// A flight simulator on this computer or in its network.
class FlightSimulatorConfig : public SensorProfile {
public:
    explicit FlightSimulatorConfig(const ProfileParts& parts) : SensorProfile(parts) {}
    std::wstring getName() override;
    std::wstring getDescription() override;
    bool OnConfigChosen(IniFile* ini) override;

protected:
    std::vector<std::string> neededFactories() const override { return {FlightGear, XPlane}; }

private:
    static constexpr const char* FlightGear = "FlightGear Flight Simulator";
    static constexpr const char* XPlane = "XPlane Flight Simulator";
};

} // namespace skyvane
