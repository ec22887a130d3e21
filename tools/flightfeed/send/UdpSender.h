#pragma once

#include "flightfeed/send/IProtocolSender.h"

#include <memory>
#include <string>

namespace skyvane {

/// Sends datagrams to one address and port. That nobody listens there isn't an error, and nothing ever blocks.
class UdpSender : public IDatagramSink {
public:
    /// Host: a name, or an IPv4 or IPv6 address in digits. Null when it can't be found or no socket is to be had;
    /// `error` then says so in words.
    static std::unique_ptr<UdpSender> open(const std::string& host, int port, std::string& error);
    ~UdpSender() override;
    UdpSender(const UdpSender&) = delete;
    UdpSender& operator=(const UdpSender&) = delete;

    void send(const void* bytes, size_t count) override;

private:
    explicit UdpSender(int handle) : handle_(handle) {}

    int handle_;
};

} // namespace skyvane
