#include "core/system/CommandLine.h"

#include <cerrno>
#include <cstdlib>

namespace skyvane {
namespace {

bool readInteger(const char* text, long& value) {
    char* end = nullptr;
    errno = 0;
    value = std::strtol(text, &end, 10);
    return end != text && *end == '\0' && errno == 0;
}

bool readEdge(const char* text, unsigned& edge) {
    long value = 0;
    if (!readInteger(text, value) || value < 1 || value > MaxWindowEdge)
        return false;
    edge = static_cast<unsigned>(value);
    return true;
}

CommandLine bad(const std::string& what, const char* text, const std::string& want) {
    CommandLine result;
    result.kind = CommandLine::Bad;
    result.trouble = "The " + what + " \"" + text + "\" is not " + want + ".";
    return result;
}

} // namespace

const char* const usageText = "Usage: main64|32 without parameters or main64|32 <resolution width> <resolution "
                              "height> [<fullscreen 0|1 (optional)>]";

CommandLine parseCommandLine(int count, const char* const* arguments) {
    CommandLine result;
    if (count <= 1)
        return result;
    if (count != 3 && count != 4) {
        result.kind = CommandLine::Usage;
        return result;
    }
    const std::string range = "a number from 1 to " + std::to_string(MaxWindowEdge);
    if (!readEdge(arguments[1], result.width))
        return bad("width", arguments[1], range);
    if (!readEdge(arguments[2], result.height))
        return bad("height", arguments[2], range);
    long fullscreen = 0;
    if (count == 4 && !readInteger(arguments[3], fullscreen))
        return bad("fullscreen flag", arguments[3], "0 or 1");
    result.kind = CommandLine::Sized;
    result.fullscreen = fullscreen != 0;
    return result;
}

} // namespace skyvane
