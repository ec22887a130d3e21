#include "sensors/nmea/ComGPSReceiverFactory.h"

#include "core/ini/ReadValue.h"
#include "sensors/ISensorDialogs.h"
#include "sensors/SensorConfig.h"
#include "sensors/nmea/ComGPSReceiver.h"
#include "sensors/nmea/GpsTrust.h"

namespace skyvane {
namespace {

constexpr wchar_t Schema[] = L"device,Serial port: ,/dev/ttyUSB0,STRING;baudRate,Baud rate: ,4800,INT;"
                             L"bufferSize,Buffer Size: ,1024,INT;timeoutMs,Timeout (milliseconds): ,2000,INT;";
constexpr char DefaultDevice[] = "/dev/ttyUSB0";
constexpr int DefaultBaudRate = 4800;
constexpr int DefaultBuffer = 1024;
constexpr int DefaultTimeoutMs = 2000;
constexpr int LargestBaudRate = 4000000;
constexpr int LargestBuffer = 1024 * 1024;
constexpr int LongestTimeoutMs = 60000;
constexpr double BlurSeconds = 1.0;
constexpr double MinimalDeltaSeconds = 0.001;

} // namespace

ComGPSReceiverFactory::ComGPSReceiverFactory(ISensorDialogs* dialogs)
    : NoSetupGUISensorFactory("ComGPSReceiver", gpsReceiverTypes()), dialogs_(dialogs), device_(DefaultDevice),
      bufferSize_(DefaultBuffer), timeoutMs_(DefaultTimeoutMs), baudRate_(DefaultBaudRate) {}

void ComGPSReceiverFactory::loadSetupFromIni(IniFile* ini, std::string section) {
    device_ = readValue(*ini, section, "device", DefaultDevice);
    bufferSize_ = readNumberWithin(*ini, section, "bufferSize", 1, LargestBuffer, DefaultBuffer);
    timeoutMs_ = readNumberWithin(*ini, section, "timeoutMs", 1, LongestTimeoutMs, DefaultTimeoutMs);
    baudRate_ = readNumberWithin(*ini, section, "baudRate", 1, LargestBaudRate, DefaultBaudRate);
}

bool ComGPSReceiverFactory::setup(IniFile* ini, std::string section) {
    return editSection(*dialogs_, *ini, section, getName(), Schema, "Forwarding.hti");
}

std::unique_ptr<ISensor> ComGPSReceiverFactory::Create() {
    return std::make_unique<ComGPSReceiver>(device_, bufferSize_, static_cast<unsigned>(timeoutMs_),
                                            static_cast<unsigned>(baudRate_), BlurSeconds, MinimalDeltaSeconds);
}

} // namespace skyvane
