#include "sensors/udp/UDPForwarder.h"

#include "core/log/Logger.h"
#include "core/time/Time.h"
#include "sensors/ISensor.h"
#include "sensors/ISensorHost.h"
#include "sensors/udp/UDPSensor.h"

#include <utility>

namespace skyvane {
namespace {

constexpr size_t BufferStep = 1024;
constexpr int NoticeMilliseconds = 40000;
constexpr char AllNodesOfTheLink[] = "FF02::1";

} // namespace

UDPForwarder::UDPForwarder(ISensorHost* host, UDPForwarderOptions options,
                           const std::map<ISensorData::Type, ISensor*>& sensors)
    : host_(host), options_(std::move(options)), buffer_(BufferStep) {
    host_->setMessage(this, "A network connection (e.g. via a wifi hotspot) is required for UDP.", MESSAGE_GREY,
                      NoticeMilliseconds);
    for (const auto& entry : sensors) {
        Source& source = sources_[entry.second];
        source.types.push_back(entry.first);
        source.isRelay = dynamic_cast<UDPSensor*>(entry.second) != nullptr;
    }
}

UDPForwarder::~UDPForwarder() {
    host_->removeMessage(this);
}

std::string UDPForwarder::getName() {
    return "UDP: " + finalTargetAddress() + ", port " + std::to_string(options_.targetPort);
}

std::string UDPForwarder::finalTargetAddress() const {
    if (!options_.broadcast)
        return options_.targetAddress;
    return options_.ipv6 ? AllNodesOfTheLink : options_.ipv4BroadcastAddress;
}

void UDPForwarder::setupSocket() {
    logText("Creating server socket...\n");
    const std::string target = finalTargetAddress();
    logText("finalTargetAddress: " + target + "\n");
    socket_ = options_.ipv6 ? CreateIpv6UDPSocket(true) : CreateIpv4UDPSocket(true);
    if (!socket_) {
        logText("Socket creation failed.\n");
    } else if (!SetUDPSocketTarget(socket_.get(), target, options_.targetPort)) {
        logText("The UDP forwarder can't send to \"" + target + "\".\n");
        socket_.reset();
    } else {
        BindSocket(socket_.get(), 0); // to know what is its own when it comes back
    }
}

void UDPForwarder::forward(ISensor* sensor) {
    if (!triedSocket_) {
        triedSocket_ = true;
        return setupSocket();
    }
    const auto found = sources_.find(sensor);
    if (!socket_ || paused_ || found == sources_.end())
        return;
    Source& source = found->second;
    const unsigned now = MilliSecs();
    const bool isDue = TimeDiff(now, source.lastSendMs) > static_cast<unsigned>(periodMs_);
    if (isDue)
        source.lastSendMs = now;
    for (const ISensorData::Type type : source.types) {
        const bool isWanted = (isDue || isForOneFrame(type)) && sensor->lastTimeUpdated(type);
        ISensorData* record = isWanted ? sensor->getData(type) : nullptr;
        if (!record)
            continue;
        int length = 0;
        SDatPacket packet;
        packet.type = type;
        packet.level = sensor->getWarning(type);
        packet.sequenceNumber = static_cast<uint8_t>(MilliSecs() / static_cast<unsigned>(periodMs_));
        packet.form = static_cast<const uint8_t*>(record->serialize(&length));
        packet.length = static_cast<size_t>(length);
        if (!source.isRelay || relayed_.isNews(type, packet.form, packet.length, now))
            add(packet);
    }
    send();
}

void UDPForwarder::add(const SDatPacket& packet) {
    if (fill_ + packet.bytes() >= buffer_.size())
        send();
    if (packet.bytes() >= buffer_.size())
        buffer_.resize(packet.bytes() + BufferStep);
    packet.write(buffer_.data() + fill_);
    fill_ += packet.bytes();
}

void UDPForwarder::send() {
    if (fill_ > 0)
        hlp_send(socket_.get(), reinterpret_cast<const char*>(buffer_.data()), static_cast<unsigned>(fill_));
    fill_ = 0;
}

} // namespace skyvane
