#include "sensors/transport/ISocket.h"

#include "core/log/Logger.h"

#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <string>

namespace skyvane {
namespace {

/// Nothing to do now, or the other side is gone: no fault of this socket.
bool isQuiet(int errorNumber) {
    return errorNumber == EAGAIN || errorNumber == EWOULDBLOCK || errorNumber == ECONNRESET || errorNumber == EINTR;
}

} // namespace

void printSocketError(const char* what, int errorNumber) {
    char text[128];
    logText(std::string(what) + strerror_r(errorNumber, text, sizeof(text)) + "\n", Logger::ToConsole);
}

ISocket::~ISocket() {
    close();
}

int ISocket::getAvailableBytes() const {
    int count = 0;
    if (ioctl(handle_, FIONREAD, &count) != 0) {
        printSocketError("socket error: ", errno);
        return 0;
    }
    return count;
}

template <class Call>
long ISocket::withRestore(Call call) {
    long count = call();
    if (count < 0 && errno == ENOTCONN && restorable_) {
        restorable_ = restore();
        count = call();
    }
    return count;
}

/// A target that can't be reached is tried in every frame.
void ISocket::tellOnce(int errorNumber) {
    if (errorNumber != toldError_)
        printSocketError("", errorNumber);
    toldError_ = errorNumber;
}

/// Of a system call: what only means that it can't go on now counts as nothing done.
int ISocket::resultOf(long count) {
    if (count >= 0)
        return static_cast<int>(count);
    if (isQuiet(errno))
        return 0;
    tellOnce(errno);
    return -1;
}

int ISocket::recv(char* buffer, unsigned length, bool blocking) {
    const int flags = MSG_NOSIGNAL | (blocking ? 0 : MSG_DONTWAIT);
    return resultOf(withRestore([&] { return receiveOnce(buffer, length, flags); }));
}

int ISocket::recvWaiting(char* buffer, unsigned length) {
    const long count = withRestore([&] { return receiveOnce(buffer, length, MSG_NOSIGNAL | MSG_DONTWAIT); });
    if (count < 0 && !isQuiet(errno))
        tellOnce(errno);
    return static_cast<int>(count);
}

int ISocket::send(const char* bytes, unsigned length) {
    return resultOf(withRestore([&] { return sendOnce(bytes, length, MSG_NOSIGNAL); }));
}

bool ISocket::restore() {
    return false;
}

void ISocket::setReceiveBufferSize(unsigned bytes) {
    receiveBufferSize_ = bytes > INT_MAX ? INT_MAX : static_cast<int>(bytes);
    applyReceiveBufferSize();
}

void ISocket::applyReceiveBufferSize() {
    if (isGood() && receiveBufferSize_ >= 0)
        setOption(SOL_SOCKET, SO_RCVBUF, receiveBufferSize_);
}

void ISocket::setSocketHandle(int handle) {
    if (handle_ >= 0)
        ::close(handle_);
    handle_ = handle;
}

long ISocket::receiveOnce(char* buffer, unsigned length, int flags) {
    return ::recv(handle_, buffer, length, flags);
}

long ISocket::sendOnce(const char* bytes, unsigned length, int flags) {
    return ::send(handle_, bytes, length, flags);
}

bool ISocket::setOption(int level, int name, int value) {
    if (setsockopt(handle_, level, name, &value, sizeof(value)) == 0)
        return true;
    printSocketError("socket error: ", errno);
    return false;
}

} // namespace skyvane
