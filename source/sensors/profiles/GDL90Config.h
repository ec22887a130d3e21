#pragma once

#include "sensors/profiles/SensorProfile.h"

namespace skyvane {

/// A receiver that speaks GDL 90.
class GDL90Config : public SensorProfile {
public:
    explicit GDL90Config(const ProfileParts& parts) : SensorProfile(parts) {}
    std::wstring getName() override;
    std::wstring getDescription() override;
    bool OnConfigChosen(IniFile* ini) override;

    static constexpr const char* Factory = "GDL90 compatible device";
    /// A device of that kind at the usual port.
    static SensorEntry gdl90(const std::string& flavor);

protected:
    std::vector<std::string> neededFactories() const override { return {Factory}; }
    /// What the sensor's settings call the kind of device.
    virtual std::string flavor() const { return "Generic"; }
};

} // namespace skyvane
