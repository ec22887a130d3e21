#pragma once

#include "sensors/transport/IPv4Socket.h"
#include "sensors/transport/UDPSocketOf.h"

namespace skyvane {

/// A datagram socket of IP version 4.
using IPv4UDPSocket = UDPSocketOf<IPv4Socket>;

} // namespace skyvane
