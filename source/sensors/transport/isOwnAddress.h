#pragma once

#include "sensors/transport/IpAddress.h"

namespace skyvane {

/// Whether an address is one of this host, whatever its port. One of version 4 that a socket of version 6 tells of is
/// known as well.
bool isOwnAddress(const IpAddress& address);

} // namespace skyvane
