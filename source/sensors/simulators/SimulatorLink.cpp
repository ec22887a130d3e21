#include "sensors/simulators/SimulatorLink.h"

#include "core/log/Logger.h"

#include <algorithm>

namespace skyvane {

SimulatorLink::SimulatorLink(const std::string& name, int port, int bufferBytes)
    : socket_(CreateIpv4UDPSocket(false)), buffer_(static_cast<size_t>(std::max(bufferBytes, 1))) {
    if (!socket_) {
        logText(name + " creation failed.\n");
    } else if (!BindSocket(socket_.get(), port)) {
        logText(name + " bind failed.\n");
        socket_.reset();
    }
}

int SimulatorLink::recv() {
    return socket_ ? socket_->recvWaiting(buffer_.data(), static_cast<unsigned>(buffer_.size())) : -1;
}

int SimulatorLink::getBoundPort() const {
    const auto* udp = dynamic_cast<const Ipv4UDPSocket*>(socket_.get());
    return udp ? udp->getBoundPort() : -1;
}

} // namespace skyvane
