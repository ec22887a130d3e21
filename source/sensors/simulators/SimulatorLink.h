#pragma once

#include "sensors/transport/Socket.h"

#include <memory>
#include <string>
#include <vector>

namespace skyvane {

/// The UDP socket on which a simulator is heard. Without blocking; main thread.
class SimulatorLink {
public:
    /// So many datagrams are taken in one frame at most, so that a flood never holds it.
    static constexpr int MaxDatagramsPerUpdate = 1000;

    /// Binds to the port. A failure is logged with the name before "creation failed." or "bind failed."; then nothing
    /// ever comes.
    SimulatorLink(const std::string& name, int port, int bufferBytes);

    /// The length of the next waiting datagram, which lies in bytes(), or -1. Beyond the buffer a datagram is cut.
    int recv();
    const char* bytes() const { return buffer_.data(); }
    bool isGood() const { return socket_ != nullptr; }
    /// The port that the system gave, -1 without a socket.
    int getBoundPort() const;

private:
    std::unique_ptr<Socket> socket_;
    std::vector<char> buffer_;
};

} // namespace skyvane
