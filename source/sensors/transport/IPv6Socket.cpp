#include "sensors/transport/IPv6Socket.h"

#include <netinet/in.h>

namespace skyvane {

void IPv6Socket::setIPv4ReceptionEnabled(bool enabled) {
    ipv4Reception_ = enabled;
    if (isGood())
        IPv6Socket::applyOptions();
}

void IPv6Socket::applyOptions() {
    setOption(IPPROTO_IPV6, IPV6_V6ONLY, !ipv4Reception_);
}

void IPv6Socket::applyBroadcast(bool enabled) {
    setOption(IPPROTO_IPV6, IPV6_MULTICAST_LOOP, enabled);
}

} // namespace skyvane
