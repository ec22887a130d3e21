#pragma once

#include "sensors/transport/IPSocket.h"
#include "sensors/transport/IPv4Address.h"

namespace skyvane {

/// A socket of IP version 4; IPv4UDPSocket and IPv4TCPSocket are the ones to make.
class IPv4Socket : public IPSocket {
public:
    using Address = IPv4Address;

protected:
    explicit IPv4Socket(int type) : IPSocket(4, type) {}
    /// Lets datagrams go to broadcast addresses.
    void applyBroadcast(bool enabled);
};

} // namespace skyvane
