#pragma once

#include <sys/socket.h>

#include <memory>
#include <string>

namespace skyvane {

/// An address and port of either IP version, a plain value. Default-made it is none: isGood() is false.
class IpAddress {
public:
    IpAddress() = default;
    /// Of a numeric text, no name look-up; a zone as in "fe80::1%eth0" is understood. What isn't an address of either
    /// version, or a port outside 0..65535, makes a bad address.
    IpAddress(const std::string& text, int port);
    /// Every address of this host, to bind to. The version is 4 or 6.
    static IpAddress any(int version, int port);

    bool isGood() const { return length_ > 0; }
    /// 4 or 6, 0 for a bad address.
    int getIPVersion() const;
    int getPort() const;
    /// Without the port; empty for a bad address.
    std::string getAddressAsString() const;
    std::unique_ptr<IpAddress> createNewCopy() const { return std::make_unique<IpAddress>(*this); }

    const sockaddr* getInternalRepresentation() const { return reinterpret_cast<const sockaddr*>(&storage_); }
    /// Bytes of the representation, 0 for a bad address.
    socklen_t getInternalLength() const { return length_; }
    /// False, and no change, for what isn't an IPv4 or IPv6 address of full length.
    bool setInternalRepresentation(const sockaddr* address, socklen_t length);

protected:
    IpAddress(int family, const std::string& text, int port);
    void parse(int family, const std::string& text, int port);

private:
    sockaddr_storage storage_{};
    socklen_t length_ = 0;
};

} // namespace skyvane
