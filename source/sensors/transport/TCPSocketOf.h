#pragma once

#include <memory>

namespace skyvane {

/// A stream socket of one IP version: see IPv4TCPSocket and IPv6TCPSocket.
///
/// After a lost connection send and recv connect again to the stored address, which blocks for its time-out at most. An
/// accepted socket has no address to go to and isn't restored.
template <class FamilySocket>
class TCPSocketOf : public FamilySocket {
public:
    using Address = typename FamilySocket::Address;

    TCPSocketOf();

    /// Blocks for the time-out at most; a failure leaves a closed socket, and the next call starts anew.
    bool connect(const Address& address, unsigned timeoutMilliseconds);
    /// After bind; the backlog is the number of peers that may wait.
    bool listen(int backlog);
    /// The next peer, or null when none came in time.
    std::unique_ptr<TCPSocketOf> accept(unsigned timeoutMilliseconds);
    bool restore() override;

private:
    explicit TCPSocketOf(int acceptedHandle);
    bool connectStored();

    Address peer_;
    unsigned connectTimeoutMilliseconds_ = 0;
    int backlog_ = -1;  ///< -1 when not listening.
    bool fresh_ = true; ///< The handle was made but not yet tried to connect.
};

} // namespace skyvane
