#include "sensors/transport/UDPSocketOf.h"

#include "sensors/transport/IPv4Socket.h"
#include "sensors/transport/IPv6Socket.h"

namespace skyvane {

template <class FamilySocket>
UDPSocketOf<FamilySocket>::UDPSocketOf(bool broadcast) : FamilySocket(SOCK_DGRAM), broadcast_(broadcast) {
    this->open();
}

template <class FamilySocket>
void UDPSocketOf<FamilySocket>::applyOptions() {
    FamilySocket::applyOptions();
    this->applyBroadcast(broadcast_);
}

template <class FamilySocket>
bool UDPSocketOf<FamilySocket>::setUDPTarget(const Address& target) {
    if (!target.isGood())
        return false;
    target_ = target;
    return true;
}

template <class FamilySocket>
long UDPSocketOf<FamilySocket>::receiveOnce(char* buffer, unsigned length, int flags) {
    sockaddr_storage sender{};
    socklen_t senderLength = sizeof(sender);
    const long count =
        ::recvfrom(this->getSocketHandle(), buffer, length, flags, reinterpret_cast<sockaddr*>(&sender), &senderLength);
    if (count >= 0)
        sender_.setInternalRepresentation(reinterpret_cast<sockaddr*>(&sender), senderLength);
    return count;
}

template <class FamilySocket>
long UDPSocketOf<FamilySocket>::sendOnce(const char* bytes, unsigned length, int flags) {
    const sockaddr* target = target_.isGood() ? target_.getInternalRepresentation() : nullptr;
    return ::sendto(this->getSocketHandle(), bytes, length, flags, target, target_.getInternalLength());
}

template class UDPSocketOf<IPv4Socket>;
template class UDPSocketOf<IPv6Socket>;

} // namespace skyvane
