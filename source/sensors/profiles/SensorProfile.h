#pragma once

#include "sensors/profiles/IConfigOverride.h"
#include "sensors/profiles/ProfileDocument.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace skyvane {

class SensorManager;

/// What every profile is made with. Manager and dialogs outlive it; the icon may be null.
struct ProfileParts {
    SensorManager* sensors;
    ISensorDialogs* dialogs;
    DeviceSensors device;
    irr::video::ITexture* icon = nullptr;
};

/// A profile that makes its sensors with factories of the manager's list.
class SensorProfile : public IConfigOverride {
public:
    irr::video::ITexture* getIcon() override { return parts_.icon; }
    std::wstring getObstacle() override;

protected:
    /// The keys of one kind of sensor: the factory's name, and what fills the section, or null.
    struct SensorEntry {
        std::string factory;
        std::function<void(IniFile& ini, const std::string& section)> fill;
    };

    explicit SensorProfile(const ProfileParts& parts) : parts_(parts) {}
    ISensorDialogs& dialogs() const { return *parts_.dialogs; }
    const DeviceSensors& device() const { return parts_.device; }
    SensorManager& sensors() const { return *parts_.sensors; }

    /// The factories that the profile can't do without: the attitude estimator's, unless told otherwise.
    virtual std::vector<std::string> neededFactories() const { return {FlightStateFactory}; }
    /// False, with a word to the user and the log, when one of them is missing.
    bool hasFactories();
    /// Replaces all sensors of the document by these; every type comes from the first one that has it.
    void writeSensors(IniFile& ini, const std::vector<SensorEntry>& entries) const;
    /// The attitude estimator in one of its modes.
    static SensorEntry flightState(const std::string& configMode);

    static constexpr const char* FlightStateFactory = "FlightStateIMU";

private:
    ProfileParts parts_;
};

} // namespace skyvane
