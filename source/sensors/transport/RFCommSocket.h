#pragma once

#include "sensors/transport/HandleComSocket.h"

namespace skyvane {

/// A Bluetooth serial channel: RFCOMM, channel 1.
class RFCommSocket : public HandleComSocket {
public:
    /// A Bluetooth address as "00:11:22:33:44:55". Blocks until the device answers or the system gives up.
    bool connectSocket(const std::string& target) override;
};

} // namespace skyvane
