#pragma once

#include "sensors/raw/IGPSParser.h"
#include "sensors/raw/RawSourceBase.h"
#include "sensors/transport/ConcurrentComSocket.h"

#include <memory>
#include <vector>

namespace skyvane {

class IDeviceDescriptor;

/// A receiver on a serial port or a Bluetooth channel. It is connected to as soon as it is there, given up when it has
/// been silent for too long, and tried again every second. Everything but the connect runs on the caller's thread.
class ExternalRawDataSource : public RawSourceBase {
public:
    /// A receiver that speaks NMEA. The descriptor, a BluetoothDevice or an RS232Device, is needed during the call
    /// only.
    ExternalRawDataSource(IDeviceDescriptor* device, int bufferSize, int timeoutMs, int parserTimeoutMs);
    /// The same over any socket, in any language.
    ExternalRawDataSource(std::unique_ptr<IComSocket> socket, std::string target, std::string name,
                          std::unique_ptr<IGPSParser> parser, int bufferSize, int timeoutMs);

    void receiveAndLockData(ThreadInfo* thread, unsigned int milliseconds) override;
    /// False when the device was silent, or spoke another language, until its link was given up.
    bool getCompatibility() override { return compatibility_ != NotCompatible; }
    bool getGPS(GPS_Data& gps) override;
    std::string getRawNMEA() override { return rawText_; }
    bool getConnectivity() override { return link_ == Link::Connected; }
    std::string getName() override { return name_; }

private:
    enum class Link { NotTried, Connected, Waiting };
    enum Compatibility { Compatible, NotCompatible, Unknown };

    void tryConnect(unsigned now);
    void receive(unsigned now);
    void giveUpWhenSilent(unsigned now);

    ConcurrentComSocket socket_;
    std::string target_;
    std::string name_;
    std::unique_ptr<IGPSParser> parser_;
    std::vector<char> buffer_;
    unsigned timeoutMs_;
    Link link_ = Link::NotTried;
    Compatibility compatibility_ = Unknown;
    unsigned lastTryMs_ = 0;
    unsigned connectedMs_ = 0;
    unsigned lastDataMs_ = 0;
    GPS_Data gps_;
    bool hasGps_ = false;
    std::string rawText_;
};

} // namespace skyvane
