#include "sensors/transport/HandleComSocket.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace skyvane {

bool HandleComSocket::sendData(char* bytes, int length) {
    int sent = 0;
    while (handle_ >= 0 && sent < length) {
        const ssize_t count = ::write(handle_, bytes + sent, static_cast<size_t>(length - sent));
        if (count > 0)
            sent += static_cast<int>(count);
        else if (count == 0 || errno != EINTR)
            break;
    }
    return handle_ >= 0 && sent >= length;
}

int HandleComSocket::recvData(char* buffer, int length) {
    const int count = std::min(length, getAvailableBytes());
    if (count <= 0)
        return 0;
    const ssize_t got = ::read(handle_, buffer, static_cast<size_t>(count));
    return got > 0 ? static_cast<int>(got) : 0;
}

int HandleComSocket::getAvailableBytes() {
    int count = 0;
    return handle_ >= 0 && ioctl(handle_, FIONREAD, &count) == 0 ? std::max(count, 0) : 0;
}

void HandleComSocket::closeSocket() {
    setHandle(-1);
}

void HandleComSocket::setHandle(int handle) {
    if (handle_ >= 0)
        ::close(handle_);
    handle_ = handle;
}

} // namespace skyvane
