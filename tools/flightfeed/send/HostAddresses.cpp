#include "flightfeed/send/HostAddresses.h"

namespace skyvane {

HostAddresses findHost(const std::string& host, int port, int kind, std::string& error) {
    addrinfo hints{};
    hints.ai_family = AF_UNSPEC;
    hints.ai_socktype = kind;
    addrinfo* found = nullptr;
    const int result = getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found);
    if (result != 0)
        error = "can't find \"" + host + "\": " + gai_strerror(result);
    return HostAddresses(result == 0 ? found : nullptr, &freeaddrinfo);
}

} // namespace skyvane
