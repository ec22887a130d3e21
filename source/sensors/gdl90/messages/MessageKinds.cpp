#include "sensors/gdl90/messages/MessageKinds.h"

#include "sensors/gdl90/messages/FFAHRSMessage.h"
#include "sensors/gdl90/messages/FFIdMessage.h"
#include "sensors/gdl90/messages/HeartbeatGDL90Message.h"
#include "sensors/gdl90/messages/LevilAoAMessage.h"
#include "sensors/gdl90/messages/LevilGPSStatus.h"
#include "sensors/gdl90/messages/MessageBytes.h"
#include "sensors/gdl90/messages/OwnShipGDL90Message.h"
#include "sensors/gdl90/messages/OwnShipGeoAltGDL90Message.h"
#include "sensors/gdl90/messages/StratuxAHRSMessage.h"
#include "sensors/gdl90/messages/StratuxHeartbeatMessage.h"
#include "sensors/gdl90/messages/TalosAccMessage.h"
#include "sensors/gdl90/messages/TalosAoAMessage.h"
#include "sensors/gdl90/messages/TalosGPSMessage.h"
#include "sensors/gdl90/messages/TalosGyroMessage.h"
#include "sensors/gdl90/messages/TalosPressureMessage.h"
#include "sensors/gdl90/messages/TalosTemperatureMessage.h"
#include "sensors/gdl90/messages/TrafficGDL90Message.h"
#include "sensors/gdl90/messages/UATUplinkGDL90Message.h"
#include "sensors/gdl90/messages/UnknownGDL90Message.h"

#include <array>

namespace skyvane {
namespace {

using Message = IGDL90Message;

template <class T>
std::unique_ptr<Message> make() {
    return std::make_unique<T>();
}

struct Kind {
    size_t smallestFrame; ///< Flags and check sequence counted.
    std::unique_ptr<Message> (*create)();
};

/// By the type's number.
constexpr std::array<Kind, Message::TypeCount> kinds{{{9, make<HeartbeatGDL90Message>},
                                                      {0, make<UnknownGDL90Message>},
                                                      {30, make<OwnShipGDL90Message>},
                                                      {7, make<OwnShipGeoAltGDL90Message>},
                                                      {30, make<TrafficGDL90Message>},
                                                      {5, make<FFAHRSMessage>},
                                                      {5, make<FFIdMessage>},
                                                      {5, make<StratuxHeartbeatMessage>},
                                                      {26, make<StratuxAHRSMessage>},
                                                      {436, make<UATUplinkGDL90Message>},
                                                      {39, make<TalosPressureMessage>},
                                                      {23, make<TalosTemperatureMessage>},
                                                      {38, make<TalosGPSMessage>},
                                                      {30, make<TalosGyroMessage>},
                                                      {30, make<TalosAccMessage>},
                                                      {50, make<TalosAoAMessage>},
                                                      {12, make<LevilAoAMessage>},
                                                      {14, make<LevilGPSStatus>},
                                                      {0, make<UnknownGDL90Message>}}};

constexpr uint8_t ForeFlightId = 0x65;
constexpr uint8_t LevilId = 0x4C;
constexpr uint8_t LevilSecond = 0x45;

Message::Type foreFlightType(uint8_t subId) {
    return subId == 0 ? Message::FFID : subId == 1 ? Message::FFAHRS : Message::UNKNOWN;
}

/// The boxes of two makers share these.
Message::Type levilType(const MessageBytes& bytes) {
    if (bytes.byte(1) != LevilSecond)
        return Message::UNKNOWN;
    switch (bytes.byte(2)) {
    case 1:
        return bytes.byte(3) == 1 ? Message::STRATUX_AHRS : Message::UNKNOWN;
    case 2:
        return bytes.byte(3) == 0 ? Message::LEVIL_AOA : Message::UNKNOWN;
    case 7:
        return Message::LEVIL_GPS_STATUS;
    default:
        return Message::UNKNOWN;
    }
}

Message::Type typeOfId(const MessageBytes& bytes) {
    switch (bytes.byte(0)) {
    case 0:
        return Message::HEARTBEAT;
    case 7:
        return Message::UAT_UPLINK;
    case 10:
        return Message::OWNSHIP;
    case 11:
        return Message::OWNSHIP_GEO_ALT;
    case 20:
        return Message::TRAFFIC;
    case 0x3D:
        return Message::TALOS_PRESSURE;
    case 0x3E:
        return Message::TALOS_GYRO;
    case 0x3F:
        return Message::TALOS_ACC;
    case 0x41:
        return Message::TALOS_TEMPERATURE;
    case 0x42:
        return Message::TALOS_GPS;
    case LevilId:
        return levilType(bytes);
    case 0x53:
        return Message::TALOS_AOA;
    case ForeFlightId:
        return foreFlightType(bytes.byte(1));
    case 204:
        return Message::STRATUX_HEARBEAT;
    default:
        return Message::UNKNOWN;
    }
}

} // namespace

Message::Type findMessageType(const MessageBytes& bytes, size_t frameBytes) {
    const Message::Type type = typeOfId(bytes);
    return frameBytes < kinds[static_cast<size_t>(type)].smallestFrame ? Message::UNKNOWN : type;
}

std::unique_ptr<Message> createMessage(Message::Type type) {
    return kinds[static_cast<size_t>(type)].create();
}

} // namespace skyvane
