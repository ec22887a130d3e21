#include "core/log/Logger.h"

#include "core/text/Numbers.h"

#include <atomic>
#include <cstdio>
#include <utility>

namespace skyvane {

Logger* logger = nullptr;

namespace {

std::atomic<int> quietConsoles{0};

std::string asText(const char* value) {
    return value ? value : "";
}
std::string asText(const std::string& value) {
    return value;
}
std::string asText(double value) {
    return toText(value);
}
std::string asText(int value) {
    return toText(value);
}
std::string asText(unsigned long value) {
    return std::to_string(value);
}

std::string withSlash(std::string folder) {
    if (folder.empty() || (folder.back() != '/' && folder.back() != '\\'))
        folder += '/';
    return folder;
}

} // namespace

Logger::Logger(std::string folder) : folder_(withSlash(std::move(folder))) {
    createAdditionalLogFile("log.txt");
    logger = this;
    write(folder_ + "\n", ToFile, 0);
}

Logger::~Logger() {
    if (logger == this)
        logger = nullptr;
}

template <class T>
void Logger::log(const T& value, int flags, int file) {
    write(asText(value), flags, file);
}

void Logger::log(const char* value, int flags, int file) {
    write(asText(value), flags, file);
}

template void Logger::log(const std::string&, int, int);
template void Logger::log(const double&, int, int);
template void Logger::log(const int&, int, int);
template void Logger::log(const unsigned long&, int, int);

int Logger::createAdditionalLogFile(const char* name) {
    const std::lock_guard<std::mutex> lock(mutex_);
    streams_.emplace_back(folder_ + name, std::ios::binary | std::ios::trunc);
    return static_cast<int>(streams_.size()) - 1;
}

void Logger::write(const std::string& text, int flags, int file) {
    const std::lock_guard<std::mutex> lock(mutex_);
    if ((flags & ToFile) && file >= 0 && static_cast<size_t>(file) < streams_.size())
        streams_[static_cast<size_t>(file)] << text << std::flush;
    if (flags & ToConsole)
        logStringConsole(text);
}

void Logger::logStringConsole(const std::string& text) {
    if (text.empty() || quietConsoles > 0)
        return;
    const std::string line = text.back() == '\n' ? text : text + '\n';
    std::fwrite(line.data(), 1, line.size(), stdout);
    std::fflush(stdout);
}

QuietConsole::QuietConsole() {
    ++quietConsoles;
}

QuietConsole::~QuietConsole() {
    --quietConsoles;
}

void logText(const std::string& text, int flags) {
    if (logger)
        logger->log(text, flags);
    else
        Logger::logStringConsole(text);
}

} // namespace skyvane
