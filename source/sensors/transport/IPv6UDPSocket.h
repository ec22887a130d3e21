#pragma once

#include "sensors/transport/IPv6Socket.h"
#include "sensors/transport/UDPSocketOf.h"

namespace skyvane {

/// A datagram socket of IP version 6.
using IPv6UDPSocket = UDPSocketOf<IPv6Socket>;

} // namespace skyvane
