#pragma once

#include <fstream>
#include <mutex>
#include <string>
#include <vector>

namespace skyvane {

/// The program's log: Logs/log.txt of this run, and further files beside it.
///
/// No levels, no time stamps, no line ends of its own: a caller that wants a line gives its end. A file that can't be
/// opened leaves its stream failed; writes then go nowhere and nothing stops. Safe from every thread; its mutex is a
/// leaf of the lock order.
class Logger {
public:
    enum Flags { ToFile = 1, ToConsole = 2, ToBoth = 3 };

    /// Opens log.txt in the folder, truncating it, writes the folder as its first entry and becomes `logger`.
    explicit Logger(std::string folder);
    ~Logger();
    Logger(const Logger&) = delete;
    Logger& operator=(const Logger&) = delete;

    /// T is one of std::string, double, int, unsigned long.
    template <class T>
    void log(const T& value, int flags, int file = 0);
    /// Null counts as the empty text.
    void log(const char* value, int flags, int file = 0);

    /// Opens another file of the folder, truncating it; the result is the `file` argument of log().
    int createAdditionalLogFile(const char* name);

    /// To standard output, with a line feed when the text doesn't end in one; nothing for an empty text.
    static void logStringConsole(const std::string& text);

private:
    void write(const std::string& text, int flags, int file);

    std::string folder_;
    std::mutex mutex_; ///< Guards streams_ and standard output. Leaf: nothing else is locked under it.
    std::vector<std::ofstream> streams_;
};

/// While one lives nothing of the log goes to standard output: for tools whose output is data.
class QuietConsole {
public:
    QuietConsole();
    ~QuietConsole();
    QuietConsole(const QuietConsole&) = delete;
    QuietConsole& operator=(const QuietConsole&) = delete;
};

/// The process's log, null before it exists and after it has gone: logText() tests that.
extern Logger* logger;

/// Writes to the log when there is one, otherwise only to standard output.
void logText(const std::string& text, int flags = Logger::ToBoth);

} // namespace skyvane
