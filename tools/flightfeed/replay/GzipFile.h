#pragma once

#include <string>

namespace skyvane {

/// Reads a whole file, unpacked when it is gzip. False, with the reason in `error`, when it can't be read, is cut, or
/// unpacks to more than 256 MiB.
bool readMaybeGzip(const std::string& path, std::string& content, std::string& error);

} // namespace skyvane
