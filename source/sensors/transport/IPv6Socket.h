#pragma once

#include "sensors/transport/IPSocket.h"
#include "sensors/transport/IPv6Address.h"

namespace skyvane {

/// A socket of IP version 6; IPv6UDPSocket and IPv6TCPSocket are the ones to make.
class IPv6Socket : public IPSocket {
public:
    using Address = IPv6Address;

    /// Whether a bound socket also hears IPv4 peers; on at start, to be set before bind, kept across a restore.
    void setIPv4ReceptionEnabled(bool enabled);

protected:
    explicit IPv6Socket(int type) : IPSocket(6, type) {}
    void applyOptions() override;
    /// Version 6 has groups instead of broadcast: lets datagrams to a group reach listeners on this host too.
    void applyBroadcast(bool enabled);

private:
    bool ipv4Reception_ = true;
};

} // namespace skyvane
