#include "chartmaker/report/ConsoleProgress.h"

#include "core/text/Numbers.h"

#include <unistd.h>

namespace skyvane {

ConsoleProgress::ConsoleProgress(std::FILE* terminal) : terminal_(isatty(fileno(terminal)) ? terminal : nullptr) {}

void ConsoleProgress::setTitle(const std::string& title) {
    clear();
    title_ = title;
    percent_ = -1;
    setProgress(0.0);
}

void ConsoleProgress::setProgress(double share) {
    const int percent = roundHalfAway(share * 100.0);
    if (!terminal_ || percent == percent_)
        return;
    percent_ = percent;
    isShown_ = true;
    std::fprintf(terminal_, "\r%s %3d%%\033[K", title_.c_str(), percent);
    std::fflush(terminal_);
}

void ConsoleProgress::clear() {
    if (!isShown_)
        return;
    isShown_ = false;
    std::fputs("\r\033[K", terminal_);
    std::fflush(terminal_);
}

} // namespace skyvane
