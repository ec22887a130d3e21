#pragma once

#include "sensors/transport/IPv4Address.h"

#include <list>

namespace skyvane {

/// The broadcast addresses of the interfaces that are up, each with the given port; empty when there are none.
std::list<IPv4Address> queryIPv4BroadcastAdresses(unsigned short port);

} // namespace skyvane
