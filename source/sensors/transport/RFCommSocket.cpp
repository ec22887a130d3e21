#include "sensors/transport/RFCommSocket.h"

#include "sensors/transport/ISocket.h"

#include <bluetooth/bluetooth.h>
#include <bluetooth/rfcomm.h>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

namespace skyvane {
namespace {

constexpr uint8_t SerialChannel = 1;

bool isAddress(const std::string& text) {
    return bachk(text.c_str()) == 0;
}

} // namespace

bool RFCommSocket::connectSocket(const std::string& target) {
    closeSocket();
    const int handle = isAddress(target) ? ::socket(AF_BLUETOOTH, SOCK_STREAM | SOCK_CLOEXEC, BTPROTO_RFCOMM) : -1;
    if (handle < 0)
        return false;
    sockaddr_rc address{};
    address.rc_family = AF_BLUETOOTH;
    address.rc_channel = SerialChannel;
    str2ba(target.c_str(), &address.rc_bdaddr);
    if (::connect(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        printSocketError("Bluetooth: ", errno);
        ::close(handle);
        return false;
    }
    fcntl(handle, F_SETFL, fcntl(handle, F_GETFL, 0) | O_NONBLOCK);
    setHandle(handle);
    return true;
}

} // namespace skyvane
