#pragma once

namespace skyvane {

/// A datagram socket of one IP version: see IPv4UDPSocket and IPv6UDPSocket.
template <class FamilySocket>
class UDPSocketOf : public FamilySocket {
public:
    using Address = typename FamilySocket::Address;

    /// isGood() tells whether the system gave a socket. Broadcast lets it send to all of a network: broadcast addresses
    /// in version 4, groups that include this host in version 6.
    explicit UDPSocketOf(bool broadcast = true);

    /// Where send() goes; a bad address is refused. Without a target nothing can be sent.
    bool setUDPTarget(const Address& target);
    const Address& getUDPTarget() const { return target_; }
    /// Who sent the last datagram; a bad address before the first.
    const Address& getLastDatagramAddress() const { return sender_; }

protected:
    void applyOptions() override;
    long receiveOnce(char* buffer, unsigned length, int flags) override;
    long sendOnce(const char* bytes, unsigned length, int flags) override;

private:
    bool broadcast_;
    Address target_;
    Address sender_;
};

} // namespace skyvane
