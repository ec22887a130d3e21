#include "sensors/udp/UDPSensor.h"

#include "core/log/Logger.h"
#include "core/time/Time.h"
#include "sensors/SensorManager.h"
#include "sensors/transport/isOwnAddress.h"
#include "sensors/transport/tellMissingNetwork.h"
#include "sensors/udp/UDPForwarder.h"

#include <string>
#include <utility>

namespace skyvane {
namespace {

constexpr size_t DatagramBytes = 1048576;
constexpr int MostComplaints = 200;
constexpr char AllRoutersOfTheLink[] = "FF02::2";

} // namespace

UDPSensor::UDPSensor(SensorManager* sensors, const UDPSensorOptions& options, std::vector<ISensorData::Type> types)
    : sensors_(sensors), options_(options), types_(std::move(types)), records_(*sensors), buffer_(DatagramBytes) {
    for (const ISensorData::Type type : types_)
        if (ISensorData::isType(type))
            states_[static_cast<size_t>(type)].isListed = true;
}

void UDPSensor::setupSocket() {
    tellMissingNetwork();
    logText("Creating server socket...\n");
    auto socket = options_.ipv6 ? CreateIpv6UDPSocket(true) : CreateIpv4UDPSocket(true);
    if (!socket) {
        logText("Socket creation failed.\n");
        return;
    }
    if (!BindSocket(socket.get(), options_.bindPort)) {
        logText("Socket bind failed.\n");
        return;
    }
    SetSocketBuffer(socket.get(), options_.bufferSize, options_.bufferSize);
    if (options_.ipv6)
        AddIpv6MulticastMembership(socket.get(), AllRoutersOfTheLink);
    socket_ = std::move(socket);
}

bool UDPSensor::Update() {
    if (!triedSocket_) {
        triedSocket_ = true;
        setupSocket();
    }
    for (TypeState& state : states_)
        state.updated = false;
    bool anyCame = false;
    for (int i = 0; socket_ && i < MaxDatagramsPerUpdate; ++i) {
        const int length = socket_->recvWaiting(buffer_.data(), static_cast<unsigned>(buffer_.size()));
        if (length < 0)
            break;
        if (!isOwnEcho() && OnDatagram(reinterpret_cast<const uint8_t*>(buffer_.data()), static_cast<size_t>(length)))
            anyCame = true;
    }
    return anyCame;
}

/// What a forwarder of this program sends to all of the network comes back here.
bool UDPSensor::isOwnEcho() const {
    const IpAddress sender = GetUDPSocketSender(socket_.get());
    for (int i = 0; i < sensors_->getSensorForwarderCount(); ++i) {
        const auto* forwarder = dynamic_cast<const UDPForwarder*>(sensors_->getSensorForwarder(i));
        if (forwarder && forwarder->getLocalPort() == sender.getPort() && isOwnAddress(sender))
            return true;
    }
    return false;
}

bool UDPSensor::OnDatagram(const uint8_t* bytes, size_t length) {
    bool anyTaken = false;
    for (size_t i = 0; i < length;) {
        SDatPacket packet;
        if (!packet.read(bytes + i, length - i)) {
            ++i;
            continue;
        }
        if (take(packet))
            anyTaken = true;
        i += packet.bytes();
    }
    return anyTaken;
}

/// A flood of bad packets must not fill the disk.
void UDPSensor::complain(const std::string& text) {
    if (complaints_ < MostComplaints)
        logText(text);
    if (++complaints_ == MostComplaints)
        logText("UDPSensor: further bad packets aren't told.\n");
}

bool UDPSensor::isAccepted(const SDatPacket& packet) {
    const uint8_t last = order_.last();
    if (!order_.isInOrder(packet.sequenceNumber)) {
        const int difference = SeqNrDiff(static_cast<char>(packet.sequenceNumber), static_cast<char>(last));
        complain("outOfOrder: seqNr=" + std::to_string(packet.sequenceNumber) + " oldSeqNr=" + std::to_string(last) +
                 " Diff=" + std::to_string(difference) + " Counter=" + std::to_string(order_.dropped()) + "\n");
        return false;
    }
    if (!packet.isIntact)
        complain("Wrong checksum\n");
    return packet.isIntact;
}

bool UDPSensor::take(const SDatPacket& packet) {
    if (!isAccepted(packet))
        return false;
    if (!ISensorData::isType(packet.type) || !states_[static_cast<size_t>(packet.type)].isListed)
        return false;
    if (!records_.take(static_cast<ISensorData::Type>(packet.type), packet.form, packet.length))
        return false;
    TypeState& state = states_[static_cast<size_t>(packet.type)];
    state.came = true;
    state.updated = true;
    state.level = packet.level;
    state.lastMs = lastPacketMs_ = MilliSecs();
    anyCame_ = true;
    return true;
}

bool UDPSensor::lastTimeUpdated(ISensorData::Type type) {
    return ISensorData::isType(type) && states_[static_cast<size_t>(type)].updated;
}

ISensor::WarningLevel UDPSensor::getWarning(ISensorData::Type type) {
    if (!isConnected() || !anyCame_ || !ISensorData::isType(type))
        return WRONG;
    const unsigned now = MilliSecs();
    const TypeState& state = states_[static_cast<size_t>(type)];
    if (!state.came || TimeDiff(now, lastPacketMs_) >= static_cast<unsigned>(options_.timeOutMs))
        return WRONG;
    return TimeDiff(now, state.lastMs) >= SilentTypeMs ? WRONG : state.level;
}

std::string UDPSensor::getSensorDetails() {
    const std::string timeOut = "Timeout: " + std::to_string(options_.timeOutMs) + " ms\n";
    if (!anyCame_)
        return timeOut;
    return "Last Update: " + std::to_string(TimeDiff(MilliSecs(), lastPacketMs_)) + " ms\n" + timeOut;
}

int UDPSensor::getBoundPort() const {
    return GetSocketPort(socket_.get());
}

} // namespace skyvane
