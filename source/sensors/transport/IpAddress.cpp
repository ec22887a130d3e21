#include "sensors/transport/IpAddress.h"

#include <netdb.h>
#include <netinet/in.h>

#include <cstring>

namespace skyvane {
namespace {

socklen_t lengthOfFamily(int family) {
    switch (family) {
    case AF_INET:
        return sizeof(sockaddr_in);
    case AF_INET6:
        return sizeof(sockaddr_in6);
    default:
        return 0;
    }
}

} // namespace

IpAddress::IpAddress(const std::string& text, int port) {
    parse(AF_UNSPEC, text, port);
}

IpAddress::IpAddress(int family, const std::string& text, int port) {
    parse(family, text, port);
}

void IpAddress::parse(int family, const std::string& text, int port) {
    if (port < 0 || port > 65535 || text.empty())
        return;
    addrinfo hints{};
    hints.ai_family = family;
    hints.ai_socktype = SOCK_DGRAM;
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    addrinfo* found = nullptr;
    if (getaddrinfo(text.c_str(), std::to_string(port).c_str(), &hints, &found) != 0)
        return;
    setInternalRepresentation(found->ai_addr, found->ai_addrlen);
    freeaddrinfo(found);
}

IpAddress IpAddress::any(int version, int port) {
    return {version == 6 ? "::" : "0.0.0.0", port};
}

int IpAddress::getIPVersion() const {
    switch (storage_.ss_family) {
    case AF_INET:
        return 4;
    case AF_INET6:
        return 6;
    default:
        return 0;
    }
}

int IpAddress::getPort() const {
    switch (storage_.ss_family) {
    case AF_INET:
        return ntohs(reinterpret_cast<const sockaddr_in&>(storage_).sin_port);
    case AF_INET6:
        return ntohs(reinterpret_cast<const sockaddr_in6&>(storage_).sin6_port);
    default:
        return 0;
    }
}

std::string IpAddress::getAddressAsString() const {
    char text[NI_MAXHOST];
    if (!isGood() ||
        getnameinfo(getInternalRepresentation(), length_, text, sizeof(text), nullptr, 0, NI_NUMERICHOST) != 0)
        return "";
    return text;
}

bool IpAddress::setInternalRepresentation(const sockaddr* address, socklen_t length) {
    const socklen_t needed = address && length >= sizeof(sa_family_t) ? lengthOfFamily(address->sa_family) : 0;
    if (needed == 0 || length < needed)
        return false;
    storage_ = {};
    std::memcpy(&storage_, address, needed);
    length_ = needed;
    return true;
}

} // namespace skyvane
