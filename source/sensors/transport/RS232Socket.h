#pragma once

#include "sensors/transport/HandleComSocket.h"

namespace skyvane {

/// A serial port in raw mode, 8 data bits, no parity, one stop bit, no flow control.
///
///     RS232Socket port;
///     if (port.connectSocket("/dev/ttyUSB0:115200")) ...
class RS232Socket : public HandleComSocket {
public:
    /// "path:baud"; without a rate, and for one that serial ports don't have, 4800. Failure is printed.
    bool connectSocket(const std::string& target) override;
    bool sendData(char* bytes, int length) override;
};

/// The two parts of a target.
struct RS232Target {
    explicit RS232Target(const std::string& text);

    std::string path;
    int baudRate = 4800;
};

} // namespace skyvane
