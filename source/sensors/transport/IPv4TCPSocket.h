#pragma once

#include "sensors/transport/IPv4Socket.h"
#include "sensors/transport/TCPSocketOf.h"

namespace skyvane {

/// A stream socket of IP version 4.
using IPv4TCPSocket = TCPSocketOf<IPv4Socket>;

} // namespace skyvane
