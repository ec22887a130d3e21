#include "flightfeed/send/UdpSender.h"

#include <netdb.h>
#include <sys/socket.h>
#include <unistd.h>

namespace skyvane {

std::unique_ptr<UdpSender> UdpSender::open(const std::string& host, int port, std::string& error) {
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = SOCK_DGRAM;
    addrinfo* found = nullptr;
    const int result = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found);
    if (result != 0) {
        error = "can't find \"" + host + "\": " + gai_strerror(result);
        return nullptr;
    }
    int handle = -1;
    for (const addrinfo* entry = found; entry && handle < 0; entry = entry->ai_next) {
        handle = socket(entry->ai_family, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        if (handle >= 0 && connect(handle, entry->ai_addr, entry->ai_addrlen) != 0) {
            close(handle);
            handle = -1;
        }
    }
    freeaddrinfo(found);
    if (handle < 0) {
        error = "can't send to \"" + host + "\"";
        return nullptr;
    }
    return std::unique_ptr<UdpSender>(new UdpSender(handle));
}

UdpSender::~UdpSender() {
    close(handle_);
}

void UdpSender::send(const void* bytes, size_t count) {
    // The refusal of an earlier datagram is reported to the next one, which then isn't sent: try that one again.
    if (::send(handle_, bytes, count, MSG_NOSIGNAL) < 0)
        (void)!::send(handle_, bytes, count, MSG_NOSIGNAL);
}

} // namespace skyvane
