#include "sensors/transport/Socket.h"

#include "sensors/transport/connectWithTimeout.h"

#include <arpa/inet.h>
#include <poll.h>

#include <algorithm>

namespace skyvane {
namespace {

template <class T>
std::unique_ptr<T> unlessBad(std::unique_ptr<T> socket) {
    return socket->isGood() ? std::move(socket) : nullptr;
}

template <class T>
std::unique_ptr<Socket> connected(const IpAddress& address, unsigned timeoutMilliseconds) {
    typename T::Address target(address.getAddressAsString(), address.getPort());
    auto socket = std::make_unique<T>();
    if (!socket->connect(target, timeoutMilliseconds))
        return nullptr;
    return socket;
}

template <class T>
bool setTarget(Socket* socket, const std::string& address, int port) {
    auto* udp = dynamic_cast<T*>(socket);
    return udp && udp->setUDPTarget({address, port});
}

bool changeMembership(Socket* socket, const std::string& group, int option) {
    const IPv6Address address(group, 0);
    if (!socket || !address.isGood())
        return false;
    const auto* internal = reinterpret_cast<const sockaddr_in6*>(address.getInternalRepresentation());
    const ipv6_mreq request{internal->sin6_addr, internal->sin6_scope_id};
    return setsockopt(socket->getSocketHandle(), IPPROTO_IPV6, option, &request, sizeof(request)) == 0;
}

} // namespace

std::unique_ptr<Socket> CreateIpv4UDPSocket(bool broadcast) {
    return unlessBad(std::make_unique<IPv4UDPSocket>(broadcast));
}

std::unique_ptr<Socket> CreateIpv6UDPSocket(bool broadcast) {
    return unlessBad(std::make_unique<IPv6UDPSocket>(broadcast));
}

std::unique_ptr<Socket> CreateIpv4TCPSocket() {
    return unlessBad(std::make_unique<IPv4TCPSocket>());
}

std::unique_ptr<Socket> CreateIpv6TCPSocket(bool ipv4Reception) {
    auto socket = unlessBad(std::make_unique<IPv6TCPSocket>());
    if (socket)
        socket->setIPv4ReceptionEnabled(ipv4Reception);
    return socket;
}

std::unique_ptr<Socket> CreateTCPSocketFromList(const std::list<IpAddress>& addresses, int port, int timeoutSeconds,
                                                int timeoutMicroseconds) {
    const long long limit = timeoutSeconds * 1000LL + timeoutMicroseconds / 1000;
    const auto milliseconds = static_cast<unsigned>(std::clamp(limit, 0LL, 3600000LL));
    for (const IpAddress& address : addresses) {
        const IpAddress target(address.getAddressAsString(), port);
        auto socket = target.getIPVersion() == 6   ? connected<IPv6TCPSocket>(target, milliseconds)
                      : target.getIPVersion() == 4 ? connected<IPv4TCPSocket>(target, milliseconds)
                                                   : nullptr;
        if (socket)
            return socket;
    }
    return nullptr;
}

bool SetUDPSocketTarget(Socket* socket, const std::string& address, int port) {
    return setTarget<IPv4UDPSocket>(socket, address, port) || setTarget<IPv6UDPSocket>(socket, address, port);
}

bool BindSocket(Socket* socket, int port) {
    return socket && socket->bind(port);
}

int GetSocketPort(const Socket* socket) {
    const auto* bound = dynamic_cast<const IPSocket*>(socket);
    return bound ? bound->getBoundPort() : -1;
}

IpAddress GetUDPSocketSender(const Socket* socket) {
    if (const auto* udp = dynamic_cast<const IPv4UDPSocket*>(socket))
        return udp->getLastDatagramAddress();
    if (const auto* udp = dynamic_cast<const IPv6UDPSocket*>(socket))
        return udp->getLastDatagramAddress();
    return {};
}

bool SetSocketBuffer(Socket* socket, int sendBytes, int receiveBytes) {
    if (!socket || sendBytes < 0 || receiveBytes < 0)
        return false;
    socket->setReceiveBufferSize(static_cast<unsigned>(receiveBytes));
    return setsockopt(socket->getSocketHandle(), SOL_SOCKET, SO_SNDBUF, &sendBytes, sizeof(sendBytes)) == 0;
}

bool isTCPSocketReadyToWrite(Socket* socket) {
    if (!socket)
        return false;
    pollfd wait{socket->getSocketHandle(), POLLOUT, 0};
    return poll(&wait, 1, 0) == 1 && wait.revents == POLLOUT;
}

bool AddIpv6MulticastMembership(Socket* socket, const std::string& group) {
    return changeMembership(socket, group, IPV6_JOIN_GROUP);
}

bool DropIpv6MulticastMembership(Socket* socket, const std::string& group) {
    return changeMembership(socket, group, IPV6_LEAVE_GROUP);
}

int hlp_send(Socket* socket, const char* bytes, unsigned length) {
    return socket ? socket->send(bytes, length) : -1;
}

int hlp_recv(Socket* socket, char* buffer, unsigned length, bool blocking) {
    return socket ? socket->recv(buffer, length, blocking) : -1;
}

std::string hlp_ipv42string(in_addr address) {
    char text[INET_ADDRSTRLEN];
    return inet_ntop(AF_INET, &address, text, sizeof(text)) ? text : "";
}

std::string hlp_ipv62string(in6_addr address) {
    char text[INET6_ADDRSTRLEN];
    return inet_ntop(AF_INET6, &address, text, sizeof(text)) ? text : "";
}

} // namespace skyvane
