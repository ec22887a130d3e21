#pragma once

#include <string>

namespace skyvane {

/// argv[0] up to and including its last "/" or "\"; empty when there is none.
std::string getAppHomePathFromArgV0(const char* argv0);

/// Makes each folder on the path and the path itself, with mode 0770. True when the last one was made or is a folder
/// already.
bool makePath(const std::string& path);

/// Each run of "/" becomes one.
std::string cleanPath(const std::string& path);

/// Replaces the file's content. False when it can't be opened, written or closed.
bool writeStringToFile(const std::string& path, const std::string& text);

/// Whether there is a file, and not a folder, that can be reached.
bool fileExist(const std::string& path);

/// In KB, MB or GB of the given base (1000.0), rounded to 2 decimals: "1.5 MB".
std::string humanReadableSpace(unsigned long bytes, double base);

/// Bytes of a block of the file system that holds the path; 4096 when it can't be asked.
unsigned long getFileSystemBlockSize(const std::string& path);

} // namespace skyvane
