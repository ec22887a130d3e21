#include "sensors/udp/UDPForwarderFactory.h"

#include "core/ini/IniFile.h"
#include "core/ini/ReadValue.h"
#include "core/text/Numbers.h"
#include "sensors/ISensorDialogs.h"
#include "sensors/SensorConfig.h"
#include "sensors/SensorManager.h"
#include "sensors/transport/IWifiAddresses.h"

namespace skyvane {
namespace {

constexpr wchar_t Schema[] = L"Ipv6,Use Ipv6,0,BOOLEAN;Broadcast,Use broadcast address,1,BOOLEAN;"
                             L"TargetAddress,Target address (if no broadcast): ,255.255.255.255,STRING;"
                             L"TargetPort,Target port: ,1991,INT;";
constexpr int LargestPort = 65535;

} // namespace

UDPForwarderFactory::UDPForwarderFactory(SensorManager* sensors, ISensorDialogs* dialogs, const IWifiAddresses* wifi)
    : sensors_(sensors), dialogs_(dialogs), wifi_(wifi) {}

void UDPForwarderFactory::recalculateTypeMapping() {
    sources_.clear();
    for (const ISensorData::Type type : allDataTypes()) {
        ISensor* sensor = sensors_->getDefaultSensor(type);
        if (sensor && sensor != sensors_->getSensorInterface(0))
            sources_[type] = sensor;
    }
}

bool UDPForwarderFactory::setup() {
    recalculateTypeMapping();
    dialogs_->offerNetwork();
    IniFile settings;
    saveSetupToIni(&settings, "");
    if (!dialogs_->edit("UDP forwarding", Schema, "Forwarding.hti", settings))
        return false;
    return loadSetupFromIni(&settings, "");
}

bool UDPForwarderFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    const UDPForwarderOptions defaults;
    options_.ipv6 = readNumber(*ini, section, "Ipv6", defaults.ipv6) != 0;
    options_.broadcast = readNumber(*ini, section, "Broadcast", defaults.broadcast) != 0;
    options_.targetAddress = readValue(*ini, section, "TargetAddress", defaults.targetAddress);
    options_.targetPort = readNumberWithin(*ini, section, "TargetPort", 1, LargestPort, defaults.targetPort);
    recalculateTypeMapping();
    return true;
}

void UDPForwarderFactory::saveSetupToIni(IniFile* ini, std::string section) {
    ini->set(section, "Ipv6", toText(static_cast<int>(options_.ipv6)));
    ini->set(section, "Broadcast", toText(static_cast<int>(options_.broadcast)));
    ini->set(section, "TargetAddress", options_.targetAddress);
    ini->set(section, "TargetPort", toText(options_.targetPort));
}

std::unique_ptr<ISensorForwarder> UDPForwarderFactory::Create() {
    options_.ipv4BroadcastAddress = wifi_->getIpv4WifiBroadcastAddress();
    return std::make_unique<UDPForwarder>(sensors_->getHost(), options_, sources_);
}

} // namespace skyvane
