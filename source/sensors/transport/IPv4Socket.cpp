#include "sensors/transport/IPv4Socket.h"

namespace skyvane {

void IPv4Socket::applyBroadcast(bool enabled) {
    setOption(SOL_SOCKET, SO_BROADCAST, enabled);
}

} // namespace skyvane
