#include "sensors/transport/isOwnAddress.h"

#include <ifaddrs.h>
#include <netinet/in.h>

#include <cstring>
#include <memory>
#include <optional>

namespace skyvane {
namespace {

/// Version 4 in the form that sockets of version 6 have for it. None for another family.
std::optional<in6_addr> asVersion6(const sockaddr* address) {
    in6_addr result{};
    if (address && address->sa_family == AF_INET6) {
        result = reinterpret_cast<const sockaddr_in6*>(address)->sin6_addr;
        return result;
    }
    if (!address || address->sa_family != AF_INET)
        return std::nullopt;
    result.s6_addr[10] = result.s6_addr[11] = 0xff;
    std::memcpy(result.s6_addr + 12, &reinterpret_cast<const sockaddr_in*>(address)->sin_addr, sizeof(in_addr));
    return result;
}

} // namespace

bool isOwnAddress(const IpAddress& address) {
    const std::optional<in6_addr> wanted = asVersion6(address.isGood() ? address.getInternalRepresentation() : nullptr);
    ifaddrs* interfaces = nullptr;
    if (!wanted || getifaddrs(&interfaces) != 0)
        return false;
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> owner(interfaces, &freeifaddrs);
    for (const ifaddrs* i = interfaces; i; i = i->ifa_next)
        if (const auto own = asVersion6(i->ifa_addr); own && IN6_ARE_ADDR_EQUAL(&*own, &*wanted))
            return true;
    return false;
}

} // namespace skyvane
