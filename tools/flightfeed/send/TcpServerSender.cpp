#include "flightfeed/send/StreamSenders.h"

#include "flightfeed/send/HostAddresses.h"

#include <cerrno>
#include <cstring>
#include <sys/socket.h>
#include <unistd.h>

namespace skyvane {

namespace {

int listenAt(const addrinfo& address) {
    const int handle = socket(address.ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (handle < 0)
        return -1;
    const int on = 1;
    setsockopt(handle, SOL_SOCKET, SO_REUSEADDR, &on, sizeof on);
    if (bind(handle, address.ai_addr, address.ai_addrlen) == 0 && listen(handle, SOMAXCONN) == 0)
        return handle;
    ::close(handle);
    return -1;
}

} // namespace

std::unique_ptr<TcpServerSender> TcpServerSender::open(const std::string& host, int port, std::string& error) {
    const HostAddresses found = findHost(host, port, SOCK_STREAM, error);
    if (!found)
        return nullptr;
    int handle = -1;
    for (const addrinfo* entry = found.get(); entry && handle < 0; entry = entry->ai_next)
        handle = listenAt(*entry);
    if (handle >= 0)
        return std::unique_ptr<TcpServerSender>(new TcpServerSender(handle));
    error = "can't listen at \"" + host + "\" port " + std::to_string(port) + ": " + std::strerror(errno);
    return nullptr;
}

TcpServerSender::~TcpServerSender() {
    for (const int reader : readers_)
        ::close(reader);
    ::close(listener_);
}

void TcpServerSender::acceptAll() {
    for (;;) {
        const int reader = ::accept4(listener_, nullptr, nullptr, SOCK_NONBLOCK | SOCK_CLOEXEC);
        if (reader < 0)
            return;
        readers_.push_back(reader);
    }
}

void TcpServerSender::send(const void* bytes, size_t count) {
    acceptAll();
    for (size_t i = 0; i < readers_.size();) {
        const bool hasGone =
            ::send(readers_[i], bytes, count, MSG_NOSIGNAL) < 0 && errno != EAGAIN && errno != EWOULDBLOCK;
        if (!hasGone) {
            ++i;
            continue;
        }
        ::close(readers_[i]);
        readers_.erase(readers_.begin() + static_cast<long>(i));
    }
}

} // namespace skyvane
