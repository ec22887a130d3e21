#pragma once

#include <string>

namespace skyvane {

/// What the command line asks for.
struct CommandLine {
    enum Kind {
        Automatic, ///< no parameters: a window of the desktop's size less a margin
        Sized,     ///< width, height and perhaps full screen
        Usage,     ///< a wrong number of parameters
        Bad        ///< a parameter that makes no sense: `trouble` says why
    };

    Kind kind = Automatic;
    unsigned width = 0;
    unsigned height = 0;
    bool fullscreen = false;
    std::string trouble;
};

/// The largest window edge that is believed.
constexpr long MaxWindowEdge = 16384;

/// Decimal integers; any non-zero third one is full screen.
CommandLine parseCommandLine(int count, const char* const* arguments);

extern const char* const usageText;

} // namespace skyvane
