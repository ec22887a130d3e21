#pragma once

#include "sensors/udp/UDPForwarder.h"

namespace skyvane {

class ISensorDialogs;
class IWifiAddresses;
class SensorManager;

/// Makes the forwarder that sends the records of the default sensors to another copy of the program.
class UDPForwarderFactory : public ISensorForwarderFactory {
public:
    /// Manager, dialogs and addresses outlive the factory.
    UDPForwarderFactory(SensorManager* sensors, ISensorDialogs* dialogs, const IWifiAddresses* wifi);

    bool setup() override;
    /// True always: a forwarder of this kind is restored, with the default sensors of that moment.
    bool loadSetupFromIni(IniFile* ini, std::string section) override;
    void saveSetupToIni(IniFile* ini, std::string section) override;
    std::unique_ptr<ISensorForwarder> Create() override;
    std::string getName() override { return "UDP"; }

private:
    /// Each type comes from its default sensor, unless that is the NullSensor.
    void recalculateTypeMapping();

    SensorManager* sensors_;
    ISensorDialogs* dialogs_;
    const IWifiAddresses* wifi_;
    UDPForwarderOptions options_;
    std::map<ISensorData::Type, ISensor*> sources_;
};

} // namespace skyvane
