#pragma once

#include <fcntl.h>
#include <poll.h>
#include <stdlib.h>
#include <termios.h>
#include <unistd.h>

#include <string>

namespace skyvane {

/// The device's end of a serial line; path() is what the program opens.
class PseudoTerminal {
public:
    PseudoTerminal() : handle_(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
        grantpt(handle_);
        unlockpt(handle_);
        char name[128] = {};
        ptsname_r(handle_, name, sizeof name);
        path_ = name;
    }
    ~PseudoTerminal() { ::close(handle_); }
    PseudoTerminal(const PseudoTerminal&) = delete;
    PseudoTerminal& operator=(const PseudoTerminal&) = delete;

    const std::string& path() const { return path_; }
    void write(const std::string& bytes) { (void)!::write(handle_, bytes.data(), bytes.size()); }
    /// Waits for so many bytes.
    std::string read(size_t count) {
        std::string text;
        pollfd wait{handle_, POLLIN, 0};
        while (text.size() < count && poll(&wait, 1, 3000) == 1) {
            char byte = 0;
            if (::read(handle_, &byte, 1) != 1)
                break;
            text += byte;
        }
        return text;
    }
    termios settings() const {
        termios settings{};
        tcgetattr(handle_, &settings);
        return settings;
    }

private:
    int handle_;
    std::string path_;
};

} // namespace skyvane
