#include "sensors/raw/ExternalRawDataSource.h"

#include "core/time/Time.h"
#include "sensors/nmea/NMEA_Parser.h"
#include "sensors/transport/IDeviceDescriptor.h"
#include "sensors/transport/RFCommSocket.h"
#include "sensors/transport/RS232Socket.h"

#include <algorithm>
#include <utility>

namespace skyvane {
namespace {

constexpr unsigned RetryMs = 1000;
/// A new link is given so much more than the time-out to say something.
constexpr unsigned FirstSilenceMs = 10000;

std::unique_ptr<IComSocket> socketFor(IDeviceDescriptor& device) {
    if (device.getType() == IDeviceDescriptor::Bluetooth)
        return std::make_unique<RFCommSocket>();
    return std::make_unique<RS232Socket>();
}

std::string targetOf(IDeviceDescriptor& device) {
    if (const auto* bluetooth = dynamic_cast<BluetoothDevice*>(&device))
        return bluetooth->address;
    const auto* port = dynamic_cast<RS232Device*>(&device);
    return port ? port->path + ":" + std::to_string(port->baudRate) : "";
}

std::string nameOf(IDeviceDescriptor& device) {
    if (const auto* bluetooth = dynamic_cast<BluetoothDevice*>(&device))
        return "Bluetooth device: " + bluetooth->name + " | " + bluetooth->address;
    const auto* port = dynamic_cast<RS232Device*>(&device);
    return "RS232 device: " + (port ? port->path : std::string());
}

} // namespace

ExternalRawDataSource::ExternalRawDataSource(IDeviceDescriptor* device, int bufferSize, int timeoutMs,
                                             int parserTimeoutMs)
    : ExternalRawDataSource(socketFor(*device), targetOf(*device), nameOf(*device),
                            std::make_unique<NMEA_Parser>(NMEA_Parser::GpAndGn, parserTimeoutMs), bufferSize,
                            timeoutMs) {}

ExternalRawDataSource::ExternalRawDataSource(std::unique_ptr<IComSocket> socket, std::string target, std::string name,
                                             std::unique_ptr<IGPSParser> parser, int bufferSize, int timeoutMs)
    : socket_(std::move(socket)), target_(std::move(target)), name_(std::move(name)), parser_(std::move(parser)),
      buffer_(static_cast<size_t>(std::max(bufferSize, 1))), timeoutMs_(static_cast<unsigned>(std::max(timeoutMs, 0))) {
}

void ExternalRawDataSource::receiveAndLockData(ThreadInfo*, unsigned int milliseconds) {
    lock();
    if (link_ == Link::NotTried || (link_ == Link::Waiting && TimeDiff(milliseconds, lastTryMs_) > RetryMs))
        tryConnect(milliseconds);
    if (link_ == Link::Connected) {
        receive(milliseconds);
        giveUpWhenSilent(milliseconds);
    }
}

void ExternalRawDataSource::tryConnect(unsigned now) {
    lastTryMs_ = now;
    if (socket_.tryConnectSocket(target_) == ConcurrentComSocket::Connecting) {
        link_ = Link::Waiting;
        return;
    }
    link_ = Link::Connected;
    connectedMs_ = now;
    lastDataMs_ = now;
}

void ExternalRawDataSource::receive(unsigned now) {
    const int count = socket_.recvData(buffer_.data(), static_cast<int>(buffer_.size()));
    rawText_.assign(buffer_.data(), static_cast<size_t>(count));
    for (const char byte : rawText_) {
        if (!parser_->doStep(byte))
            continue;
        gps_ = parser_->getGPSData();
        hasGps_ = true;
        compatibility_ = Compatible;
    }
    if (count > 0)
        lastDataMs_ = now;
}

void ExternalRawDataSource::giveUpWhenSilent(unsigned now) {
    if (TimeDiff(now, lastDataMs_) <= timeoutMs_ || TimeDiff(now, connectedMs_) <= timeoutMs_ + FirstSilenceMs)
        return;
    if (compatibility_ == Unknown)
        compatibility_ = NotCompatible;
    link_ = Link::Waiting;
    socket_.closeSocket();
    lastTryMs_ = now;
}

bool ExternalRawDataSource::getGPS(GPS_Data& gps) {
    if (hasGps_)
        gps = gps_;
    return hasGps_;
}

} // namespace skyvane
