#pragma once

#include <memory>
#include <netdb.h>
#include <string>

namespace skyvane {

/// A list that ends with it.
using HostAddresses = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

/// The addresses of a host: a name, or an IPv4 or IPv6 address in digits. `kind` is SOCK_DGRAM or SOCK_STREAM. Null,
/// with the words in `error`, when it can't be found.
HostAddresses findHost(const std::string& host, int port, int kind, std::string& error);

} // namespace skyvane
