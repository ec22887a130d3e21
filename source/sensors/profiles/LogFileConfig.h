#pragma once

#include "sensors/profiles/SensorProfile.h"

namespace skyvane {

/// A recorded flight.
class LogFileConfig : public SensorProfile {
public:
    explicit LogFileConfig(const ProfileParts& parts) : SensorProfile(parts) {}
    std::wstring getName() override;
    std::wstring getDescription() override;
    bool OnConfigChosen(IniFile* ini) override;

protected:
    std::vector<std::string> neededFactories() const override { return {Factory}; }

private:
    static constexpr const char* Factory = "LogFileSensor";
};

} // namespace skyvane
