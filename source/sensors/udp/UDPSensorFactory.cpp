#include "sensors/udp/UDPSensorFactory.h"

#include "sensors/ISensorDialogs.h"
#include "sensors/SensorConfig.h"

namespace skyvane {
namespace {

constexpr wchar_t Schema[] = L"ipv6,Use Ipv6,0,BOOLEAN;bindPort,Bind to port: ,1991,INT;"
                             L"bufferSize,Buffer Size: ,1048576,INT;timeOut,Timeout (milliseconds): ,500,INT;";
constexpr int LargestPort = 65535;
constexpr int LargestBuffer = 64 * 1024 * 1024;
constexpr int LongestTimeOutMs = 60000;

} // namespace

UDPSensorFactory::UDPSensorFactory(SensorManager* sensors, ISensorDialogs* dialogs)
    : NoSetupGUISensorFactory("UDPSensor", allDataTypes()), sensors_(sensors), dialogs_(dialogs) {}

void UDPSensorFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    const UDPSensorOptions defaults;
    options_.ipv6 = readNumber(*ini, section, "ipv6", 0) != 0;
    options_.bindPort = readNumberWithin(*ini, section, "bindPort", 0, LargestPort, defaults.bindPort);
    options_.bufferSize = readNumberWithin(*ini, section, "bufferSize", 1, LargestBuffer, defaults.bufferSize);
    options_.timeOutMs = readNumberWithin(*ini, section, "timeOut", 1, LongestTimeOutMs, defaults.timeOutMs);
}

bool UDPSensorFactory::setup(IniFile* ini, std::string section) {
    dialogs_->offerNetwork();
    return editSection(*dialogs_, *ini, section, getName(), Schema, "Forwarding.hti");
}

std::unique_ptr<ISensor> UDPSensorFactory::Create() {
    return std::make_unique<UDPSensor>(sensors_, options_, getSupportedDataTypes());
}

} // namespace skyvane
