#pragma once

#include "sensors/transport/IPv6Socket.h"
#include "sensors/transport/TCPSocketOf.h"

namespace skyvane {

/// A stream socket of IP version 6.
using IPv6TCPSocket = TCPSocketOf<IPv6Socket>;

} // namespace skyvane
