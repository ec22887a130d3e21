#pragma once

#include "sensors/ISensor.h"
#include "sensors/RecordSet.h"
#include "sensors/transport/Socket.h"
#include "sensors/udp/SDatPacket.h"

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class SensorManager;

struct UDPSensorOptions {
    bool ipv6 = false;
    int bindPort = SDatPacket::Port; ///< 0 takes a free one.
    int bufferSize = 1048576;        ///< What the system holds for us, bytes.
    int timeOutMs = 500;
};

/// Takes the records of another copy of the program, or of a tool, from the network, with the warning levels that they
/// had there. Main thread only; nothing blocks.
///
/// Everything is WRONG when no packet has come for the time-out; a type alone, before its first packet and when it has
/// been silent for 5 seconds while others came. Only packets that renewed a record count; what this program's own
/// forwarders sent is passed over.
class UDPSensor : public ISensor {
public:
    static constexpr double SilentTypeMs = 5000;
    /// So many datagrams are taken in one frame at most, so that a flood never holds it.
    static constexpr int MaxDatagramsPerUpdate = 1000;

    /// The manager outlives the sensor. The socket is made by the first Update; a port that is taken is logged, and the
    /// sensor then stays WRONG. Records of types that aren't listed are passed over.
    UDPSensor(SensorManager* sensors, const UDPSensorOptions& options, std::vector<ISensorData::Type> types);

    std::string getName() override { return "UDPSensor"; }
    bool Update() override;
    bool lastTimeUpdated(ISensorData::Type type) override;
    ISensorData* getData(ISensorData::Type type) override { return records_.get(type); }
    bool isDataTypeSupported(ISensorData::Type type) override { return ISensorData::isType(type); }
    std::vector<ISensorData::Type> getSupportedDataTypes() override { return types_; }
    WarningLevel getWarning(ISensorData::Type type) override;
    std::string getSensorDetails() override;

    bool isConnected() const { return socket_ != nullptr; }
    /// Takes a datagram in as Update does with those from the network; true when a packet renewed a record.
    bool OnDatagram(const uint8_t* bytes, size_t length);
    /// -1 without a socket.
    int getBoundPort() const;

private:
    struct TypeState {
        bool isListed = false;
        bool came = false;
        bool updated = false;
        WarningLevel level = WRONG;
        unsigned lastMs = 0;
    };

    void setupSocket();
    bool isOwnEcho() const;
    bool take(const SDatPacket& packet);
    bool isAccepted(const SDatPacket& packet);
    void complain(const std::string& text);

    SensorManager* sensors_;
    UDPSensorOptions options_;
    std::vector<ISensorData::Type> types_;
    RecordSet records_;
    std::array<TypeState, ISensorData::TypeCount> states_;
    std::unique_ptr<Socket> socket_;
    bool triedSocket_ = false;
    std::vector<char> buffer_;
    SequenceCheck order_;
    int complaints_ = 0;
    bool anyCame_ = false;
    unsigned lastPacketMs_ = 0;
};

} // namespace skyvane
