#include "sensors/transport/RS232Socket.h"

#include "core/log/Logger.h"
#include "core/text/Numbers.h"

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace skyvane {
namespace {

struct Speed {
    int baudRate;
    speed_t constant;
};

constexpr Speed Speeds[] = {
    {50, B50},           {75, B75},           {110, B110},         {134, B134},         {150, B150},
    {200, B200},         {300, B300},         {600, B600},         {1200, B1200},       {1800, B1800},
    {2400, B2400},       {4800, B4800},       {9600, B9600},       {19200, B19200},     {38400, B38400},
    {57600, B57600},     {115200, B115200},   {230400, B230400},   {460800, B460800},   {500000, B500000},
    {576000, B576000},   {921600, B921600},   {1000000, B1000000}, {1152000, B1152000}, {1500000, B1500000},
    {2000000, B2000000}, {2500000, B2500000}, {3000000, B3000000}, {3500000, B3500000}, {4000000, B4000000}};

speed_t speedOf(int baudRate) {
    for (const Speed& speed : Speeds)
        if (speed.baudRate == baudRate)
            return speed.constant;
    return B4800;
}

void print(const std::string& text) {
    logText(text, Logger::ToConsole);
}

bool setUp(int handle, int baudRate) {
    termios settings{};
    if (tcgetattr(handle, &settings) != 0) {
        print("error " + std::to_string(errno) + " from tcgetattr");
        return false;
    }
    cfmakeraw(&settings);
    settings.c_cflag &= ~static_cast<tcflag_t>(CSTOPB | CRTSCTS);
    settings.c_cflag |= CLOCAL | CREAD;
    settings.c_iflag &= ~static_cast<tcflag_t>(IXON | IXOFF | IXANY);
    settings.c_cc[VMIN] = 0;
    settings.c_cc[VTIME] = 0;
    if (cfsetospeed(&settings, speedOf(baudRate)) != 0 || cfsetispeed(&settings, speedOf(baudRate)) != 0) {
        print("error " + std::to_string(errno) + " setting term attributes");
        return false;
    }
    if (tcsetattr(handle, TCSANOW, &settings) != 0) {
        print("error " + std::to_string(errno) + " from tcsetattr");
        return false;
    }
    return true;
}

} // namespace

RS232Target::RS232Target(const std::string& text) : path(text) {
    const size_t colon = text.rfind(':');
    if (colon == std::string::npos || colon == 0)
        return;
    path = text.substr(0, colon);
    baudRate = toInt(text.substr(colon + 1), baudRate);
}

bool RS232Socket::connectSocket(const std::string& target) {
    closeSocket();
    const RS232Target parts(target);
    // Without waiting for a carrier, and so that a full line never blocks a writer.
    const int handle = ::open(parts.path.c_str(), O_RDWR | O_NOCTTY | O_SYNC | O_NONBLOCK | O_CLOEXEC);
    if (handle < 0) {
        const int reason = errno;
        char text[128];
        print("error " + std::to_string(reason) + " opening " + parts.path + ": " +
              strerror_r(reason, text, sizeof text) + "\n");
        return false;
    }
    if (!setUp(handle, parts.baudRate)) {
        ::close(handle);
        return false;
    }
    setHandle(handle);
    return true;
}

bool RS232Socket::sendData(char* bytes, int length) {
    const bool sent = HandleComSocket::sendData(bytes, length);
    print("write " + std::to_string(length) + " bytes: " + (sent ? "1" : "0") + "\n");
    return sent;
}

} // namespace skyvane
