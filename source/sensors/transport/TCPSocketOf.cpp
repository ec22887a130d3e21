#include "sensors/transport/TCPSocketOf.h"

#include "sensors/transport/IPv4Socket.h"
#include "sensors/transport/IPv6Socket.h"
#include "sensors/transport/connectWithTimeout.h"

#include <cerrno>

namespace skyvane {

template <class FamilySocket>
TCPSocketOf<FamilySocket>::TCPSocketOf() : FamilySocket(SOCK_STREAM) {
    this->open();
}

template <class FamilySocket>
TCPSocketOf<FamilySocket>::TCPSocketOf(int acceptedHandle) : FamilySocket(SOCK_STREAM), fresh_(false) {
    this->setSocketHandle(acceptedHandle);
}

template <class FamilySocket>
bool TCPSocketOf<FamilySocket>::connect(const Address& address, unsigned timeoutMilliseconds) {
    if (!address.isGood())
        return false;
    peer_ = address;
    connectTimeoutMilliseconds_ = timeoutMilliseconds;
    if (!(fresh_ && this->isGood()) && !FamilySocket::restore())
        return false;
    this->allowRestore();
    return connectStored();
}

template <class FamilySocket>
bool TCPSocketOf<FamilySocket>::connectStored() {
    fresh_ = false;
    if (connectWithTimeout(this->getSocketHandle(), connectTimeoutMilliseconds_, peer_.getInternalRepresentation(),
                           static_cast<int>(peer_.getInternalLength())) == 0)
        return true;
    this->close();
    return false;
}

template <class FamilySocket>
bool TCPSocketOf<FamilySocket>::listen(int backlog) {
    if (::listen(this->getSocketHandle(), backlog) != 0) {
        printSocketError("", errno);
        return false;
    }
    backlog_ = backlog;
    return true;
}

template <class FamilySocket>
std::unique_ptr<TCPSocketOf<FamilySocket>> TCPSocketOf<FamilySocket>::accept(unsigned timeoutMilliseconds) {
    if (!waitForSocket(this->getSocketHandle(), SocketEvent::Readable, timeoutMilliseconds))
        return nullptr;
    const int handle = ::accept4(this->getSocketHandle(), nullptr, nullptr, SOCK_CLOEXEC);
    if (handle < 0) {
        printSocketError("", errno);
        return nullptr;
    }
    return std::unique_ptr<TCPSocketOf>(new TCPSocketOf(handle));
}

template <class FamilySocket>
bool TCPSocketOf<FamilySocket>::restore() {
    const bool listening = backlog_ >= 0;
    if (!listening && !peer_.isGood())
        return false;
    if (!FamilySocket::restore())
        return false;
    return listening ? listen(backlog_) : connectStored();
}

template class TCPSocketOf<IPv4Socket>;
template class TCPSocketOf<IPv6Socket>;

} // namespace skyvane
