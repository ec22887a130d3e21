#include "flightfeed/send/UdpSender.h"

#include "flightfeed/send/HostAddresses.h"

#include <sys/socket.h>
#include <unistd.h>

namespace skyvane {

std::unique_ptr<UdpSender> UdpSender::open(const std::string& host, int port, std::string& error) {
    const HostAddresses found = findHost(host, port, SOCK_DGRAM, error);
    if (!found)
        return nullptr;
    int handle = -1;
    for (const addrinfo* entry = found.get(); entry && handle < 0; entry = entry->ai_next) {
        handle = socket(entry->ai_family, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        if (handle >= 0 && connect(handle, entry->ai_addr, entry->ai_addrlen) != 0) {
            close(handle);
            handle = -1;
        }
    }
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
