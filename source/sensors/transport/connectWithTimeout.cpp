#include "sensors/transport/connectWithTimeout.h"

#include <fcntl.h>
#include <poll.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <climits>

namespace skyvane {
namespace {

bool setBlocking(int socket, bool blocking) {
    const int flags = fcntl(socket, F_GETFL, 0);
    return flags >= 0 && fcntl(socket, F_SETFL, blocking ? flags & ~O_NONBLOCK : flags | O_NONBLOCK) == 0;
}

int connectNonBlocking(int socket, unsigned milliseconds, const sockaddr* address, int length) {
    if (::connect(socket, address, static_cast<socklen_t>(length)) == 0)
        return 0;
    if (errno != EINPROGRESS)
        return -1;
    if (!waitForSocket(socket, SocketEvent::Writable, milliseconds))
        return -1;
    int result = -1;
    socklen_t resultLength = sizeof(result);
    return getsockopt(socket, SOL_SOCKET, SO_ERROR, &result, &resultLength) == 0 ? result : -1;
}

} // namespace

// The limit is one of the real world, like the network's own: the replaceable clock has no say here. poll() stands for
// select(), which can't take a handle above 1023.
bool waitForSocket(int socket, SocketEvent event, unsigned milliseconds) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    pollfd wait{socket, static_cast<short>(event == SocketEvent::Readable ? POLLIN : POLLOUT), 0};
    for (;;) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        const int ready = poll(&wait, 1, static_cast<int>(std::clamp<long long>(left, 0, INT_MAX)));
        if (ready >= 0 || errno != EINTR)
            return ready > 0 && !(wait.revents & POLLNVAL);
    }
}

int connectWithTimeout(int socket, unsigned milliseconds, const sockaddr* address, int length) {
    if (!setBlocking(socket, false))
        return -1;
    const int result = connectNonBlocking(socket, milliseconds, address, length);
    return setBlocking(socket, true) ? result : -1;
}

} // namespace skyvane
