#include "flightfeed/send/SDatSender.h"

#include "flightfeed/flight/FlightState.h"
#include "sensors/udp/SDatPacket.h"

#include <cmath>

namespace skyvane {

namespace {

constexpr unsigned SEQUENCE_PERIOD_MS = 37;

} // namespace

void SDatSender::add(ISensorData& record) {
    int length = 0;
    SDatPacket packet;
    packet.type = record.getType();
    packet.level = ISensor::GOOD;
    packet.sequenceNumber = sequenceNumber_;
    packet.form = static_cast<const uint8_t*>(record.serialize(&length));
    packet.length = static_cast<size_t>(length);
    const size_t place = datagram_.size();
    datagram_.resize(place + packet.bytes());
    packet.write(datagram_.data() + place);
}

void SDatSender::send(const FlightState& state, IDatagramSink& sink) {
    const auto timeMs = static_cast<unsigned>(std::llround(state.timeSeconds * 1000.0));
    sequenceNumber_ = static_cast<uint8_t>(timeMs / SEQUENCE_PERIOD_MS);
    datagram_.clear();
    for (ISensorData* record : records_.take(state))
        add(*record);
    sink.send(datagram_.data(), datagram_.size());
}

} // namespace skyvane
