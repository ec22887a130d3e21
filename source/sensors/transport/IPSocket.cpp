#include "sensors/transport/IPSocket.h"

#include "sensors/transport/IpAddress.h"

#include <cerrno>

namespace skyvane {

bool IPSocket::open() {
    const int handle = ::socket(version_ == 6 ? AF_INET6 : AF_INET, type_ | SOCK_CLOEXEC, 0);
    const int reason = errno;
    setSocketHandle(handle);
    if (handle < 0) {
        printSocketError("", reason);
        return false;
    }
    applyReceiveBufferSize();
    applyOptions();
    return true;
}

bool IPSocket::bind(int port) {
    return isGood() && port >= 0 && port <= 65535 && bindHandle(port);
}

bool IPSocket::bindHandle(int port) {
    const IpAddress here = IpAddress::any(version_, port);
    if (::bind(getSocketHandle(), here.getInternalRepresentation(), here.getInternalLength()) != 0) {
        printSocketError("", errno);
        return false;
    }
    sockaddr_storage given{};
    socklen_t length = sizeof(given);
    getsockname(getSocketHandle(), reinterpret_cast<sockaddr*>(&given), &length);
    IpAddress bound;
    bound.setInternalRepresentation(reinterpret_cast<sockaddr*>(&given), length);
    boundPort_ = bound.getPort();
    return true;
}

bool IPSocket::restore() {
    if (!open())
        return false;
    if (boundPort_ < 0)
        return true;
    setOption(SOL_SOCKET, SO_REUSEADDR, 1);
    return bindHandle(boundPort_);
}

} // namespace skyvane
