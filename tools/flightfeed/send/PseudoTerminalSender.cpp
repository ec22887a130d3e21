#include "flightfeed/send/StreamSenders.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

namespace skyvane {

namespace {

// Without echo and without translated line ends.
int openRawLine(const char* name) {
    const int line = ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
    termios settings{};
    if (line >= 0 && tcgetattr(line, &settings) == 0) {
        cfmakeraw(&settings);
        tcsetattr(line, TCSANOW, &settings);
    }
    return line;
}

bool placeLink(const char* target, const std::string& link) {
    struct stat found {};
    if (lstat(link.c_str(), &found) == 0 && S_ISLNK(found.st_mode))
        ::unlink(link.c_str());
    return ::symlink(target, link.c_str()) == 0;
}

} // namespace

std::unique_ptr<PseudoTerminalSender> PseudoTerminalSender::open(const std::string& link, std::string& error) {
    const int terminal = posix_openpt(O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    char name[128] = {};
    int line = -1;
    if (terminal >= 0 && grantpt(terminal) == 0 && unlockpt(terminal) == 0 &&
        ptsname_r(terminal, name, sizeof name) == 0)
        line = openRawLine(name);
    if (line >= 0 && placeLink(name, link))
        return std::unique_ptr<PseudoTerminalSender>(new PseudoTerminalSender(terminal, line, link));
    error = "can't make the pseudo-terminal \"" + link + "\": " + std::strerror(errno);
    if (line >= 0)
        ::close(line);
    if (terminal >= 0)
        ::close(terminal);
    return nullptr;
}

PseudoTerminalSender::PseudoTerminalSender(int terminal, int line, std::string link)
    : terminal_(terminal), line_(line), link_(std::move(link)) {}

PseudoTerminalSender::~PseudoTerminalSender() {
    ::unlink(link_.c_str());
    ::close(line_);
    ::close(terminal_);
}

void PseudoTerminalSender::send(const void* bytes, size_t count) {
    (void)!::write(terminal_, bytes, count);
}

} // namespace skyvane
