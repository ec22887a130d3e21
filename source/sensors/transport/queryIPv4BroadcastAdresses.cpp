#include "sensors/transport/queryIPv4BroadcastAdresses.h"

#include "sensors/transport/ISocket.h"

#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

#include <cerrno>

namespace skyvane {

std::list<IPv4Address> queryIPv4BroadcastAdresses(unsigned short port) {
    std::list<IPv4Address> found;
    ifaddrs* interfaces = nullptr;
    if (getifaddrs(&interfaces) != 0) {
        printSocketError("", errno);
        return found;
    }
    for (const ifaddrs* i = interfaces; i; i = i->ifa_next) {
        constexpr unsigned needed = IFF_UP | IFF_BROADCAST;
        if ((i->ifa_flags & needed) != needed || !i->ifa_addr || i->ifa_addr->sa_family != AF_INET || !i->ifa_broadaddr)
            continue;
        IPv4Address address;
        if (address.setInternalRepresentation(i->ifa_broadaddr, sizeof(sockaddr_in)))
            found.emplace_back(address.getAddressAsString(), port);
    }
    freeifaddrs(interfaces);
    return found;
}

} // namespace skyvane
