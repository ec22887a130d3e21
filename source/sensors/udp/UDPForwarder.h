#pragma once

#include "sensors/ISensorForwarder.h"
#include "sensors/records/ISensorData.h"
#include "sensors/transport/Socket.h"
#include "sensors/udp/RelayedForms.h"
#include "sensors/udp/SDatPacket.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace skyvane {

class ISensorHost;

struct UDPForwarderOptions {
    bool ipv6 = false;
    bool broadcast = true;
    std::string targetAddress = "255.255.255.255"; ///< Without broadcast.
    int targetPort = SDatPacket::Port;
    std::string ipv4BroadcastAddress = "255.255.255.255"; ///< Of the network that broadcasts go to.
};

/// Sends what the chosen sensors renew to another copy of the program or to all of a network, each sensor at most once
/// in a forward period, uplinks at once. What came from another copy goes on once, so that nothing goes round between
/// copies. Main thread only; a target that can't be reached has no effect on anything else.
class UDPForwarder : public ISensorForwarder {
public:
    /// Host and sensors outlive the forwarder. Each type comes from its sensor. The socket is made by the first
    /// forward, which sends nothing.
    UDPForwarder(ISensorHost* host, UDPForwarderOptions options, const std::map<ISensorData::Type, ISensor*>& sensors);
    ~UDPForwarder() override;

    void forward(ISensor* sensor) override;
    void setForwardPeriod(int milliseconds) override { periodMs_ = milliseconds > 0 ? milliseconds : 1; }
    std::string getName() override;
    void setPause(bool paused) override { paused_ = paused; }
    /// From where it sends; -1 without a socket.
    int getLocalPort() const { return GetSocketPort(socket_.get()); }

private:
    struct Source {
        std::vector<ISensorData::Type> types;
        unsigned lastSendMs = 0;
        bool isRelay = false; ///< The records came from another copy.
    };

    void setupSocket();
    std::string finalTargetAddress() const;
    void add(const SDatPacket& packet);
    void send();

    ISensorHost* host_;
    UDPForwarderOptions options_;
    int periodMs_ = 37;
    bool paused_ = false;
    bool triedSocket_ = false;
    std::unique_ptr<Socket> socket_;
    std::map<ISensor*, Source> sources_;
    RelayedForms relayed_;
    std::vector<uint8_t> buffer_;
    size_t fill_ = 0;
};

} // namespace skyvane
