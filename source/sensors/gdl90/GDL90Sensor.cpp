#include "sensors/gdl90/GDL90Sensor.h"

#include "core/log/Logger.h"
#include "core/time/Time.h"
#include "sensors/ISensorHost.h"
#include "sensors/SensorManager.h"
#include "sensors/gdl90/GDL90SensorFactory.h"
#include "sensors/gdl90/messages/UATUplinkGDL90Message.h"
#include "sensors/transport/tellMissingNetwork.h"

#include <utility>

namespace skyvane {
namespace {

constexpr unsigned DatagramBytes = 65536;
constexpr unsigned QueueBytes = 1048576;
constexpr unsigned QueueEntryHeadBytes = 4;
constexpr double SilentSeconds = 1.0;
constexpr int ConnectedMessageMs = 10000;
constexpr int NoTimeOut = -1;

} // namespace

GDL90Sensor::Link::Link(int port) : socket(DatagramBytes, QueueBytes, true, port) {
    if (!socket.isGood())
        logText("GDL90Sensor: the UDP port " + std::to_string(port) + " can't be had.\n");
}

GDL90Sensor::GDL90Sensor(GDL90SensorFactory* factory, SensorManager* sensors, int port, GDL90Flavor flavor)
    : factory_(factory), sensors_(sensors), flavor_(flavor), lastDatagram_(Secs() - SilentSeconds),
      merge_(records_, flavor) {
    tellMissingNetwork();
    links_.push_back(std::make_unique<Link>(port));
    if (flavor_ == GDL90Flavor::Talos)
        links_.push_back(std::make_unique<Link>(SecondPort));
}

GDL90Sensor::~GDL90Sensor() {
    if (ISensorHost* host = sensors_->getHost())
        host->removeMessage(this);
}

std::string GDL90Sensor::getName() {
    return flavor_ == GDL90Flavor::Talos ? "Talos Avionics Device" : "GDL90 compatible device";
}

std::string GDL90Sensor::getSensorDetails() {
    return deviceName_ + (isConnected_ ? " connected" : " disconnected");
}

bool GDL90Sensor::Update() {
    const double now = Secs();
    records_.clearUpdated();
    records_.uplinks.messages.clear();
    bool anyCame = false;
    for (const auto& link : links_)
        anyCame = receive(*link, now) || anyCame;
    if (anyCame)
        merge_.updateDataExceptTrafficAndUAT(messages_, now);
    loseSilentDevice(now);
    traffic_.expire(now, records_.traffic);
    return anyCame;
}

bool GDL90Sensor::receive(Link& link, double now) {
    bool anyCame = false;
    char* data = nullptr;
    for (unsigned taken = 0; taken < QueueBytes;) {
        const unsigned length = link.socket.getNextDatagram(data);
        if (length == 0)
            break;
        take(link.parser, reinterpret_cast<const uint8_t*>(data), length, now);
        taken += length + QueueEntryHeadBytes;
        anyCame = true;
    }
    return anyCame;
}

void GDL90Sensor::OnDatagram(const uint8_t* bytes, size_t length) {
    const double now = Secs();
    take(links_.front()->parser, bytes, length, now);
    merge_.updateDataExceptTrafficAndUAT(messages_, now);
}

void GDL90Sensor::take(GDL90Parser& parser, const uint8_t* bytes, size_t length, double now) {
    connect(now);
    for (size_t i = 0; i < length; ++i)
        if (parser.parse(bytes[i]))
            parser.reuse(processReceivedGDL90Message(parser.createParsedMessage(), now));
}

/// Gives back the message that isn't needed any more.
std::unique_ptr<IGDL90Message> GDL90Sensor::processReceivedGDL90Message(std::unique_ptr<IGDL90Message> message,
                                                                        double now) {
    switch (message->getType()) {
    case IGDL90Message::UNKNOWN:
        return message;
    case IGDL90Message::TRAFFIC:
        traffic_.take(static_cast<const TrafficGDL90Message&>(*message), now, records_.traffic);
        records_.give(ISensorData::Traffic);
        return message;
    case IGDL90Message::UAT_UPLINK: {
        const auto& payload = static_cast<const UATUplinkGDL90Message&>(*message).payload;
        records_.uplinks.messages.emplace_back(payload.begin(), payload.end());
        records_.give(ISensorData::UATUplink);
        return message;
    }
    case IGDL90Message::FFID:
        deviceName_ = static_cast<const FFIdMessage&>(*message).deviceName;
        return messages_.put(std::move(message), now);
    default:
        return messages_.put(std::move(message), now);
    }
}

void GDL90Sensor::connect(double now) {
    lastDatagram_ = now;
    if (isConnected_)
        return;
    isConnected_ = true;
    if (ISensorHost* host = sensors_->getHost())
        host->setMessage(this, "Connection established.", MESSAGE_GREEN, ConnectedMessageMs);
}

void GDL90Sensor::loseSilentDevice(double now) {
    if (!isConnected_ || now - lastDatagram_ <= SilentSeconds)
        return;
    isConnected_ = false;
    records_.failAll();
    merge_.forget();
    if (ISensorHost* host = sensors_->getHost())
        host->setMessage(this, "Connection lost.", MESSAGE_RED, NoTimeOut);
}

bool GDL90Sensor::isDataTypeSupported(ISensorData::Type type) {
    return factory_->isDataTypeSupported(type);
}

ISensor::WarningLevel GDL90Sensor::getWarning(ISensorData::Type type) {
    return isConnected_ ? records_.warning(type) : WRONG;
}

bool GDL90Sensor::OnCalibrate() {
    factory_->calibrate(*this);
    return true;
}

int GDL90Sensor::getBoundPort() const {
    return links_.front()->socket.getBoundPort();
}

} // namespace skyvane
