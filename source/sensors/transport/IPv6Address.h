#pragma once

#include "sensors/transport/IpAddress.h"

namespace skyvane {

/// An address and port of IP version 6. A text that isn't one makes a bad address.
class IPv6Address : public IpAddress {
public:
    IPv6Address() = default;
    IPv6Address(const std::string& text, int port) : IpAddress(AF_INET6, text, port) {}

    /// False, and no change, for an address of another version.
    bool setInternalRepresentation(const sockaddr* address, socklen_t length) {
        return address && address->sa_family == AF_INET6 && IpAddress::setInternalRepresentation(address, length);
    }
};

} // namespace skyvane
